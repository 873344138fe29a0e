// The logs and counters of a legacy controller: the input is the answer to each of the commands in turn.
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"
#include "fuzz/support/fuzzed_machine.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/parser_trial.h"
#include "fuzz/support/record_texts.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "logs/event_records.h"
#include "logs/statistics_parsers.h"
#include "logs/statistics_records.h"
#include "plugin/host_interface/services.h"
#include "tools/qcmdrun/read_logs.h"
#include "tools/qcmdrun/status_parser.h"

namespace {

using NKVRHXA20::TRootObject;

void ReadBadStripes(ZenxController& controller, CollectedData& text) {
  qcmdrun::ReadBadStripes(controller, text, ParseBadStripe);
}

using Attach = void (*)(ZenxController& controller, CollectedData& text);
constexpr Attach kWalks[] = {
    ReadBadStripes,          qcmdrun::ReadDeviceEvents, qcmdrun::ReadDddEvents, qcmdrun::ReadSoftEvents,
    qcmdrun::ReadHardEvents, qcmdrun::ReadSubStats,     qcmdrun::ParseStatus,
};

// The records of all walks through the text.
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
  Require(NKVRHXA20::TCIMDateTime(text).ToString() == text, "the time of an event is valid", text);
}

void RequirePart(std::string_view text, std::string_view part) {
  Require(text.find(part) != text.npos, "a field is in the answer", part);
}

// The rest of the line from the first occurrence of the part on; "" if there is none.
std::string_view From(std::string_view line, std::string_view part) {
  return line.substr(std::min(line.find(part), line.size()));
}

// The values of the first six tokens of a sub-status line, each searched after the beginning of the one before it.
void RequireTokens(const ZenxSubStatData& record, std::string_view line) {
  const std::string* const fields[] = {&record.ControllerNum, &record.Channel, &record.ScsiId,
                                       &record.Params,        &record.Req_Off, &record.Max_Txer_P};
  constexpr std::string_view kTokens[] = {"A:", "C:", "I:", "PARAMS:", "REQ-OFF:", "MAX-TXER-P:"};
  std::string_view rest = line;
  for (std::size_t index = 0; index < std::size(kTokens); ++index) {
    const std::string_view found = From(rest, kTokens[index]);
    const std::string_view after = found.substr(std::min(kTokens[index].size(), found.size()));
    const std::size_t blank = after.find(' ');
    const std::string_view value = after.substr(0, blank == after.npos ? after.find_first_of("\r\n") : blank);
    Require(*fields[index] == value, "a token's first value counts", line);
    if (!found.empty()) rest = found.substr(1);
  }
  constexpr std::string_view kLast = "CUR-TXER-P:";
  const std::string_view last = From(rest, kLast);
  const std::size_t end = std::max(last.size(), kLast.size() + 2) - 2;
  Require(record.Cur_Txer_p == (last.empty() ? last : last.substr(kLast.size(), end - kLast.size())),
          "the last token's value ends before the carriage return", line);
  Require(record.InstanceID == "Zentraxis:" + record.ControllerNum + "C" + record.Channel + "S" + record.ScsiId,
          "the identifier is put together of three values", line);
}

// The columns of a row, as many as a device has counters; leading blanks are dropped, except the last character.
void RequireColumns(const ZenxEventData& record, std::string_view line) {
  const std::string* const fields[] = {&record.Channel,       &record.ScsiId,        &record.NumParityErrors,
                                       &record.NumSoftErrors, &record.NumHardErrors, &record.PFA,
                                       &record.Misc};
  constexpr bool kAreTrimmed[] = {true, true, false, true, false, true, false};
  std::string_view rest = From(line, "|");
  for (std::size_t index = 0; index < std::size(fields); ++index) {
    const std::string_view after = rest.substr(rest.empty() ? 0 : 1);
    rest = From(after, "|");
    const std::size_t width = rest.empty() ? 0 : after.size() - rest.size();
    std::string_view column = after.substr(0, width == 0 ? 0 : width - 1);
    const auto isBlank = [](char character) { return character == ' ' || character == '\t' || character == '\n'; };
    while (column.size() > 1 && isBlank(column.front())) column.remove_prefix(1);
    while (kAreTrimmed[index] && !column.empty() && isBlank(column.back())) column.remove_suffix(1);
    Require(*fields[index] == column, "a column is between its bars", line);
  }
}

// Compares the values of each line with the line itself.
void InspectLines(std::string_view text) {
  CollectedData scanner(TRootObject::GetCoreLogger(), std::string(text));
  for (auto left = std::ranges::count(text, '\n'); left > 0; --left) {
    ZenxSubStatData status(scanner.Host());
    ParseSubStat(status, scanner, "1");
    RequireTokens(status, scanner.CurrentLine());
    ZenxEventData event(scanner.Host());
    ParseDeviceEvent(event, scanner, "1");
    RequireColumns(event, scanner.CurrentLine());
    if (left > 1) scanner.NextLine();
  }
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
  if (controller.SoftEvents) Require(controller.SoftEvents->Codes.size() < lines, "no line produces two codes");
  if (controller.HardEvents) Require(controller.HardEvents->Codes.size() < lines, "no line produces two codes");
}

constexpr std::string_view kSections[] = {
    R"(Get bad stripe information
   Logical drive 1 - 0
   Logical drive 2 - 3
Command completed successfully.
)",
    R"(Device event table:
+---------+---------+---------------+-------------+-------------+-----+-------------+
| Channel | SCSI ID | Parity errors | Soft errors | Hard errors | PFA | Misc errors |
+---------+---------+---------------+-------------+-------------+-----+-------------+
|       1 |       4 |             0 |          17 |           0 |   1 |           0 |
Command completed successfully.
)",
    R"(  Date         Time       Channel   SCSI ID   Reason   Description
+------------+----------+---------+---------+--------+--------------------------------
| 06/14/2005 | 09:12:05 |       1 |       4 |   0x07 | Removed by the operator
Command completed successfully.
)",
    R"(Controller Soft Event Log
------------------------------
0000120c
Command completed successfully.
)",
    R"(Controller Hard Event Log
------------------------------
0a000203
Command completed successfully.
)",
    R"(A:1 C:2 I:6 PARAMS:0x0b REQ-OFF:32 MAX-TXER-P:10 CUR-TXER-P:10
Command completed successfully.
)",
    R"(   Current/most recent operation          : Rebuild
      Logical drive                       : 3
      Status                              : In progress
)",
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Sections nothing(nullptr, 0);
  const FuzzedMachine machine(nothing, 0, {});
  const std::string_view text = AsText(data, size);
  const auto controller = Walk(text);
  Inspect(*controller, text);
  // Only one of the two for each input: more inputs find more than both checks. Texts of all records take the longest.
  if (size % 4 != 0) {
    InspectLines(text);
  } else {
    Require(TextOf({controller}, {}) == TextOf({Walk(text)}, {}), "the same answers produce the same records");
  }
  return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed) {
  return MutateAroundSections(data, size, maxSize, seed, kSections);
}
