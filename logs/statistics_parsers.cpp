#include "logs/statistics_parsers.h"

#include <algorithm>
#include <string>

#include "collect/collected_data.h"
#include "collect/tool_text.h"
#include "logs/statistics_records.h"
#include "logs/table_columns.h"
#include "plugin/host_interface/services.h"

using NKVRHXA20::TOSSpecific;

namespace {

// The text from there to one character before the line feed, which is where the carriage return stands.
std::string_view UpToCarriageReturn(std::string_view line, std::size_t begin) {
  const std::size_t end = std::max(line.find('\n', begin), begin + 1) - 1;
  return line.substr(begin, end - begin);
}

std::string Normalised(std::string_view number) { return std::to_string(LeadingNumber(number)); }

enum class TrailingBlanks { kKept, kDropped };

struct Column {
  int number;
  std::string ZenxEventData::*field;
  TrailingBlanks trailingBlanks;
};

// Which columns keep the blanks that fill them up shows in the published texts, so it stays as it always was.
constexpr Column kColumns[] = {
    {1, &ZenxEventData::Channel,         TrailingBlanks::kDropped},
    {2, &ZenxEventData::ScsiId,          TrailingBlanks::kDropped},
    {3, &ZenxEventData::NumParityErrors, TrailingBlanks::kKept   },
    {4, &ZenxEventData::NumSoftErrors,   TrailingBlanks::kDropped},
    {5, &ZenxEventData::NumHardErrors,   TrailingBlanks::kKept   },
    {6, &ZenxEventData::PFA,             TrailingBlanks::kDropped},
    {7, &ZenxEventData::Misc,            TrailingBlanks::kKept   },
};

struct Token {
  std::string_view text;
  std::string ZenxSubStatData::*field;
};

// In the order of the line. The last value has no blank behind it.
constexpr Token kTokens[] = {
    {"A:",          &ZenxSubStatData::ControllerNum},
    {"C:",          &ZenxSubStatData::Channel      },
    {"I:",          &ZenxSubStatData::ScsiId       },
    {"PARAMS:",     &ZenxSubStatData::Params       },
    {"REQ-OFF:",    &ZenxSubStatData::Req_Off      },
    {"MAX-TXER-P:", &ZenxSubStatData::Max_Txer_P   },
};
constexpr Token kLastToken = {"CUR-TXER-P:", &ZenxSubStatData::Cur_Txer_p};

// A value that no blank ends goes to the line's end.
std::string_view UpToBlank(std::string_view line, std::size_t begin) {
  line.remove_prefix(begin);
  const auto isEnd = [](char character) { return character == ' ' || character == '\r' || character == '\n'; };
  return {line.begin(), std::ranges::find_if(line, isEnd)};
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
  const TableRow row(text.CurrentLine());
  for (const auto& [number, field, trailingBlanks] : kColumns) {
    const std::string_view column = row.Column(number);
    record.*field = trailingBlanks == TrailingBlanks::kDropped ? CollectedData::TrimRight(column) : column;
  }
  record.StatisticTime = TOSSpecific::GetLocalTime();
}

// Each token is looked for behind the start of the one before it; a token that is not there costs nothing.
void ParseSubStat(ZenxSubStatData& record, const CollectedData& text, std::string_view) {
  const std::string_view line = text.CurrentLine();
  std::size_t from = 0;
  for (const Token& token : kTokens) {
    const std::size_t found = line.find(token.text, from);
    if (found == line.npos) continue;
    record.*token.field = UpToBlank(line, found + token.text.size());
    from = found + 1;
  }
  if (const std::size_t found = line.find(kLastToken.text, from); found != line.npos) {
    record.*kLastToken.field = UpToCarriageReturn(line, found + kLastToken.text.size());
  }
  record.InstanceID = "Zentraxis:" + record.ControllerNum + "C" + record.Channel + "S" + record.ScsiId;
  record.StatisticTime = TOSSpecific::GetLocalTime();
}
