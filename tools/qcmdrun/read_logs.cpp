#include "tools/qcmdrun/read_logs.h"

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "collect/records.h"
#include "collect/tool.h"
#include "logs/event_parsers.h"
#include "logs/event_records.h"
#include "logs/labels.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/exception.h"

namespace qcmdrun {

namespace {

// Part of the lines between the rows of a table, and of each line that counts bad stripes.
constexpr std::string_view kDash = "-";

}  // namespace

void ReadBadStripes(ZenxController& controller, CollectedData& text, BadStripeParser parse) {
  if (text.FindLine("Get bad stripe information").empty()) return;
  try {
    while (Contains(text.NextLine(), kDash)) {
      auto record = std::make_shared<ZenxBstData>(controller.Host);
      parse(*record, text, controller.ControllerNum);
      controller.BadStripes.push_back(std::move(record));
    }
  } catch (const NKVRHXA20::THXAException&) {
    Log(controller.Host, kLogRoutine, "Bad Stripe data is junk: Quit BST data collection");
  }
}

// After the title come a rule, the heads of the columns and a rule.
void ReadDeviceEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Device event table:").empty()) return;
  constexpr int kLinesToFirstRow = 3;
  for (int line = 0; line < kLinesToFirstRow; ++line) text.NextLine();
  for (;; text.NextLine()) {
    const std::string_view line = text.CurrentLine();
    // The utility may print several tables.
    if (Contains(line, kCommandCompleted) || Contains(line, "Controller ")) return;
    if (Contains(line, kDash)) continue;
    auto record = std::make_shared<ZenxEventData>(controller.Host);
    ParseDeviceEvent(*record, text, controller.ControllerNum);
    controller.DeviceEvents.push_back(std::move(record));
  }
}

void ReadDddEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("+---").empty()) return;
  std::uint32_t entryNumber = 1;
  try {
    for (text.NextLine(); !Contains(text.CurrentLine(), kCommandCompleted); text.NextLine()) {
      if (Contains(text.CurrentLine(), kDash)) continue;
      auto record = std::make_shared<ZenxEventDddData>(controller.Host);
      ParseDddRow(*record, text, controller.ControllerNum, entryNumber);
      controller.DddEvents.push_back(std::move(record));
      ++entryNumber;
    }
  } catch (const NKVRHXA20::THXAException&) {
    Log(controller.Host, kLogRoutine, "Time Stamp is junk: Quit DDD data collection");
  }
}

void ReadSoftEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kSoftLogLabels[0].label).empty()) return;
  auto record = std::make_shared<ZenxEventSoftData>(controller.Host);
  ParseSoftLog(*record, text, controller.ControllerNum);
  controller.SoftEvents = std::move(record);
}

void ReadHardEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kHardLogLabels[0].label).empty()) return;
  auto record = std::make_shared<ZenxEventHardData>(controller.Host);
  ParseHardLog(*record, text, controller.ControllerNum);
  controller.HardEvents = std::move(record);
}

void ReadSubStats(ZenxController& controller, CollectedData& text) {
  if (text.FindLine(kSubStatLabels[0].label).empty()) return;
  for (; !Contains(text.CurrentLine(), kCommandCompleted); text.NextLine()) {
    auto record = std::make_shared<ZenxSubStatData>(controller.Host);
    ParseSubStat(*record, text, controller.ControllerNum);
    controller.SubStats.push_back(std::move(record));
  }
}

}  // namespace qcmdrun
