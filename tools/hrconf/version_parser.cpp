#include "tools/hrconf/version_parser.h"

#include <stdexcept>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "plugin/host_interface/exception.h"
#include "tools/hrconf/commands.h"
#include "tools/hrconf/labels.h"

namespace hrconf {
namespace {

void ReadVersions(ZenxHrConfBios& versions, CollectedData& text) {
  if (Contains(text.CurrentLine(), kTool.noneFound)) return;
  constexpr int kLinesOfHead = 3;
  for (int line = 0; line < kLinesOfHead; ++line) text.NextLine();
  ReadInOrder(text, versions, kVersions);
}

void LogBadData(HostHandle host, const std::exception& failure) {
  Log(host, kLogRoutine, std::string("Bad Data From Getversion output: ") + failure.what());
}

}  // namespace

void ParseVersion(ZenxHrConfBios& versions, CollectedData& text) {
  try {
    ReadVersions(versions, text);
  } catch (const NKVRHXA20::THXAException& failure) {
    LogBadData(versions.Host, failure);
  } catch (const std::out_of_range& failure) {
    LogBadData(versions.Host, failure);
  }
}

}  // namespace hrconf
