// The logs and counters of a legacy controller: the input is the answer to each of the commands in turn.
#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

#include "collect/collected_data.h"
#include "collect/records.h"
#include "fuzz/support/fuzzed_machine.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/record_texts.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/services.h"
#include "tools/qcmdrun/log_walk.h"
#include "tools/qcmdrun/status_parser.h"

namespace {

using NKVRHXA20::TRootObject;

void AttachBadStripes(ZenxController& controller, CollectedData& text) {
  qcmdrun::AttachBadStripes(controller, text, ParseBadStripe);
}

using Attach = void (*)(ZenxController& controller, CollectedData& text);
constexpr Attach kWalks[] = {
    AttachBadStripes,       qcmdrun::AttachDeviceEvents, qcmdrun::AttachDddEvents, qcmdrun::SetSoftEvents,
    qcmdrun::SetHardEvents, qcmdrun::AttachSubStats,     qcmdrun::ParseStatus,
};

// What all walks make of the text.
std::shared_ptr<ZenxController> Walk(std::string_view text) {
  auto controller = std::make_shared<ZenxController>(TRootObject::GetCoreLogger());
  controller->ControllerNum = "1";
  for (const Attach attach : kWalks) {
    CollectedData scanner(controller->Host, std::string(text));
    try {
      attach(*controller, scanner);
    } catch (const std::out_of_range&) {
      continue;  // the text ends before the table does
    }
  }
  return controller;
}

void RequireTime(const NKVRHXA20::TCIMDateTime& time) {
  const std::string text = time.ToString();
  Require(NKVRHXA20::TCIMDateTime(text).ToString() == text, "the time of an event is one", text);
}

void RequirePart(std::string_view text, std::string_view part) {
  Require(text.find(part) != text.npos, "a field stands in the answer", part);
}

void Inspect(const ZenxController& controller, std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::ranges::count(text, '\n'));
  Require(controller.BadStripes.size() <= lines && controller.DeviceEvents.size() <= lines &&
              controller.DddEvents.size() <= lines && controller.SubStats.size() <= lines,
          "no line gives two records");
  for (const auto& event : controller.DddEvents) {
    RequireTime(event->MessageTimestamp);
    for (const auto& field : {event->Date, event->Channel, event->ID, event->Reason, event->Descrip}) {
      RequirePart(text, field);
    }
  }
  for (const auto& event : controller.DeviceEvents) {
    for (const auto& field : {event->Channel, event->ScsiId, event->NumSoftErrors, event->Misc}) {
      RequirePart(text, field);
    }
  }
  for (const auto& status : controller.SubStats) {
    for (const auto& field : {status->ControllerNum, status->Channel, status->ScsiId, status->Cur_Txer_p}) {
      RequirePart(text, field);
    }
  }
  if (controller.SoftEvents) Require(controller.SoftEvents->Codes.size() < lines, "no line gives two codes");
  if (controller.HardEvents) Require(controller.HardEvents->Codes.size() < lines, "no line gives two codes");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Sections nothing(nullptr, 0);
  const FuzzedMachine machine(nothing, 0, {});
  const std::string_view text = AsText(data, size);
  const auto controller = Walk(text);
  Inspect(*controller, text);
  Require(TextOf({controller}, {}) == TextOf({Walk(text)}, {}), "the same answers give the same records");
  return 0;
}
