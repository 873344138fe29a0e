#include "logs/statistics_parsers.h"

#include <algorithm>
#include <string>

#include <fmt/core.h>

#include "collect/line_scanner.h"
#include "collect/tool_text.h"
#include "logs/statistics_records.h"
#include "logs/table_columns.h"
#include "plugin/host_interface/services.h"

using NKVRHXA20::TOSSpecific;

namespace {

// The text from there to one character before the line feed that ends the line, which is where the carriage return
// stands.
std::string_view UpToCarriageReturn(std::string_view line, std::size_t begin) {
  constexpr std::size_t kLineEnd = 2;
  return line.substr(begin, std::max(line.size(), begin + kLineEnd) - kLineEnd - begin);
}

std::string Normalised(std::string_view number) { return std::to_string(LeadingNumber(number)); }

enum class TrailingBlanks { kKept, kDropped };

struct Column {
  std::string ZenxEventData::*field;
  TrailingBlanks trailingBlanks;
};

// In the order of the row. Which columns keep the blanks that fill them up shows in the published texts, so it stays as
// it always was.
constexpr Column kColumns[] = {
    {&ZenxEventData::Channel,         TrailingBlanks::kDropped},
    {&ZenxEventData::ScsiId,          TrailingBlanks::kDropped},
    {&ZenxEventData::NumParityErrors, TrailingBlanks::kKept   },
    {&ZenxEventData::NumSoftErrors,   TrailingBlanks::kDropped},
    {&ZenxEventData::NumHardErrors,   TrailingBlanks::kKept   },
    {&ZenxEventData::PFA,             TrailingBlanks::kDropped},
    {&ZenxEventData::Misc,            TrailingBlanks::kKept   },
};

enum class ValueEnd { kBlank, kLineEnd };

struct Token {
  std::string_view text;
  std::string ZenxSubStatData::*field;
  ValueEnd end;
};

// In the order of the line. The last value has no blank behind it.
constexpr Token kTokens[] = {
    {"A:",          &ZenxSubStatData::ControllerNum, ValueEnd::kBlank  },
    {"C:",          &ZenxSubStatData::Channel,       ValueEnd::kBlank  },
    {"I:",          &ZenxSubStatData::ScsiId,        ValueEnd::kBlank  },
    {"PARAMS:",     &ZenxSubStatData::Params,        ValueEnd::kBlank  },
    {"REQ-OFF:",    &ZenxSubStatData::Req_Off,       ValueEnd::kBlank  },
    {"MAX-TXER-P:", &ZenxSubStatData::Max_Txer_P,    ValueEnd::kBlank  },
    {"CUR-TXER-P:", &ZenxSubStatData::Cur_Txer_p,    ValueEnd::kLineEnd},
};

// The value that begins there.
std::string_view CutValue(std::string_view line, std::size_t begin, ValueEnd end) {
  if (end == ValueEnd::kLineEnd) return UpToCarriageReturn(line, begin);
  return line.substr(begin, line.find_first_of(" \r\n", begin) - begin);
}

}  // namespace

void ParseBadStripe(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber) {
  constexpr std::string_view kDrive = "Logical drive ";
  record.ControllerNum = controllerNumber;
  const std::string_view line = CollectedData::TrimLeft(text.CurrentLine());
  if (const std::size_t drive = line.find(kDrive); drive != line.npos) {
    record.LogicalDrive = Normalised(UpToCarriageReturn(line, drive + kDrive.size()));
  }
  if (const std::size_t dash = line.find('-'); dash != line.npos) {
    record.NumBadStripes = Normalised(CollectedData::TrimLeft(UpToCarriageReturn(line, dash + 1)));
  }
}

void ParseDeviceEvent(ZenxEventData& record, const CollectedData& text, std::string_view controllerNumber) {
  record.ControllerNum = controllerNumber;
  TableRow row(text.CurrentLine());
  for (const auto& [field, trailingBlanks] : kColumns) {
    const std::string_view cut = row.NextColumn();
    record.*field = trailingBlanks == TrailingBlanks::kKept ? cut : CollectedData::TrimRight(cut);
  }
  record.StatisticTime = TOSSpecific::GetLocalTime();
}

// Each token is looked for after the start of the one before it; one that is missing costs nothing.
void ParseSubStat(ZenxSubStatData& record, const CollectedData& text, std::string_view) {
  const std::string_view line = text.CurrentLine();
  std::size_t from = 0;
  for (const auto& [token, field, end] : kTokens) {
    const std::size_t at = line.find(token, from);
    if (at == line.npos) continue;
    record.*field = CutValue(line, at + token.size(), end);
    from = at + 1;
  }
  record.InstanceID = fmt::format("Zentraxis:{}C{}S{}", record.ControllerNum, record.Channel, record.ScsiId);
  record.StatisticTime = TOSSpecific::GetLocalTime();
}
