#include "tools/qcmdrun/log_walk.h"

#include "collect/collected_data.h"
#include "collect/record_blocks.h"
#include "collect/records.h"
#include "collect/tool_answers.h"
#include "logs/event_parsers.h"
#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/exception.h"

namespace qcmdrun {

namespace {

bool IsRule(std::string_view line) { return line.find('-') != line.npos; }

// Few lines of a table have a "y": one search rules out all others.
static_assert(kCommandCompleted.find('y') != kCommandCompleted.npos);
bool EndsAnswer(std::string_view line) { return line.find('y') != line.npos && Contains(line, kCommandCompleted); }

// The next controller's heading ends the table where the utility prints several. Rows as printed have no "C", which
// both ends begin with: one search rules them out.
static_assert(kCommandCompleted.find('C') != kCommandCompleted.npos);
bool EndsDeviceEvents(std::string_view line) {
  return line.find('C') != line.npos && (Contains(line, kCommandCompleted) || Contains(line, "Controller "));
}

}  // namespace

void AttachBadStripes(ZenxController& controller, CollectedData& text, BadStripeParser parse) {
  if (text.FindLine("Get bad stripe information").empty()) return;
  try {
    while (Contains(text.NextLine(), "-")) {
      auto record = std::make_shared<ZenxBstData>(controller.Host);
      parse(*record, text, controller.ControllerNum);
      controller.BadStripes.push_back(std::move(record));
    }
  } catch (const NKVRHXA20::THXAException&) {
    Log(controller.Host, kLogRoutine, "Bad Stripe data is junk: Quit BST data collection");
  }
}

// Behind the title stand a rule, the heads of the columns and a rule.
void AttachDeviceEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Device event table:").empty()) return;
  constexpr int kLinesToFirstRow = 3;
  for (int line = 0; line < kLinesToFirstRow; ++line) text.NextLine();
  RecordBlocks<ZenxEventData> rows(controller.Host);
  for (; !EndsDeviceEvents(text.CurrentLine()); text.NextLine()) {
    if (IsRule(text.CurrentLine())) continue;
    auto record = rows.Make();
    ParseDeviceEvent(*record, text, controller.ControllerNum);
    controller.DeviceEvents.push_back(std::move(record));
  }
}

void AttachDddEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("+---").empty()) return;
  std::uint32_t entryNumber = 1;
  try {
    for (text.NextLine(); !Contains(text.CurrentLine(), kCommandCompleted); text.NextLine()) {
      if (IsRule(text.CurrentLine())) continue;
      auto record = std::make_shared<ZenxEventDddData>(controller.Host);
      ParseDddRow(*record, text, controller.ControllerNum, entryNumber);
      controller.DddEvents.push_back(std::move(record));
      ++entryNumber;
    }
  } catch (const NKVRHXA20::THXAException&) {
    Log(controller.Host, kLogRoutine, "Time Stamp is junk: Quit DDD data collection");
  }
}

void SetSoftEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Controller Soft Event Log").empty()) return;
  auto record = std::make_shared<ZenxEventSoftData>(controller.Host);
  ParseSoftLog(*record, text, controller.ControllerNum);
  controller.SoftEvents = std::move(record);
}

void SetHardEvents(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("Controller Hard Event Log").empty()) return;
  auto record = std::make_shared<ZenxEventHardData>(controller.Host);
  ParseHardLog(*record, text, controller.ControllerNum);
  controller.HardEvents = std::move(record);
}

void AttachSubStats(ZenxController& controller, CollectedData& text) {
  if (text.FindLine("A:").empty()) return;
  RecordBlocks<ZenxSubStatData> lines(controller.Host);
  for (; !EndsAnswer(text.CurrentLine()); text.NextLine()) {
    auto record = lines.Make();
    ParseSubStat(*record, text, controller.ControllerNum);
    controller.SubStats.push_back(std::move(record));
  }
}

}  // namespace qcmdrun
