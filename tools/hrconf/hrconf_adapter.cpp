#include "tools/hrconf/hrconf_adapter.h"

#include <utility>

#include "collect/end_of_text.h"
#include "collect/line_scanner.h"
#include "collect/recording_pass.h"
#include "collect/tool_runner.h"
#include "tools/hrconf/commands.h"
#include "tools/hrconf/controller_parser.h"
#include "tools/hrconf/os_version_60.h"
#include "tools/hrconf/read_configuration.h"
#include "tools/hrconf/version_parser.h"

using hrconf::kTool;

namespace {

// Takes the place of an answer to kGetVersion that is missing.
constexpr std::string_view kNoVersions = "Controllers found: 0                           \n";
static_assert(kNoVersions.size() == 48 && kNoVersions.starts_with(kTool.noneFound));

}  // namespace

void HrconfData::Collect(unsigned firstControllerNumber) {
  rawData_ = RecordOutputs(kTool, host_, [this] {
    return hrconf::IsOsVersion60(host_, getOsVersion_) ? hrconf::kRecordedOnOsVersion60 : kTool.recorded;
  });
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    std::string config = RunTool(kTool, host_, kGetConfig, number);
    Log(host_, kLogRoutine, "HRCONFDATA-Getconfig " + std::to_string(number) + " al:\n" + config);
    const ControllerNumber read = ReadControllerNumber(kTool, config);
    if (read == ControllerNumber::kNoneFromHereOn) return;
    if (read == ControllerNumber::kInUse) ParseConfig(std::move(config), number, firstControllerNumber + number);
  }
}

void HrconfData::ParseConfig(std::string config, unsigned toolNumber, unsigned controllerNumber) {
  CollectedData text(host_, std::move(config));
  if (text.FindLine(kControllerHeading).empty()) return;
  const auto versions = ReadVersions(toolNumber);
  const auto controller = std::make_shared<ZenxController>(host_);
  hrconf::ParseController(*controller, text, controllerNumber, *versions);
  if (!controller->Parsed) return;
  versions->ControllerNum = controller->ControllerNum;
  controller->HrConfVersions.push_back(versions);
  UntilEndOfText([&] { hrconf::ReadLogicalDrives(*controller, text); });
  UntilEndOfText([&] { hrconf::ReadPhysicalDevices(*controller, text); });
  controllers_.push_back(controller);
}

std::shared_ptr<ZenxHrConfBios> HrconfData::ReadVersions(unsigned toolNumber) const {
  std::string answer;
  if (!hrconf::IsOsVersion60(host_, getOsVersion_)) answer = RunTool(kTool, host_, hrconf::kGetVersion, toolNumber);
  if (answer.empty()) answer = kNoVersions;
  CollectedData text(host_, std::move(answer));
  auto versions = std::make_shared<ZenxHrConfBios>(host_);
  hrconf::ParseVersion(*versions, text);
  return versions;
}
