#include "tools/hrconf/version_parser.h"

#include <stdexcept>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/tool_answers.h"
#include "plugin/host_interface/exception.h"

namespace hrconf {
namespace {

// On the fifth and the sixth line of the answer, and nowhere else.
constexpr LabelledField<ZenxHrConfBios> kVersions[] = {
    {"BIOS",   &ZenxHrConfBios::BIOS,   Miss::kTakesLine},
    {"Driver", &ZenxHrConfBios::Driver, Miss::kTakesLine},
};

void ReadVersions(ZenxHrConfBios& versions, CollectedData& text) {
  if (Contains(text.CurrentLine(), kNoControllers)) return;
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
