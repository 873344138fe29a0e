#include "logs/statistics_parsers.h"

#include <algorithm>
#include <string>

#include "collect/collected_data.h"
#include "collect/text_search.h"
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

// So no token can end in the colon of one before it: the first colon behind a value ends the next token, or none.
static_assert(std::ranges::is_sorted(kTokens, {}, [](const Token& token) { return token.text.size(); }));

// Where the token ends first that begins at a place or behind it; 0 where there is none. Every token ends in its only
// colon, so what stands before each colon is compared: a search for the first letter would stop at each "A" of
// "PARAMS".
std::size_t FindTokenEnd(std::string_view line, std::string_view token, std::size_t from) {
  for (std::size_t end = from + token.size();; ++end) {
    end = line.find(':', end - 1) + 1;
    if (end == 0 || AreSame(line.data() + end - token.size(), token.data(), token.size())) return end;
  }
}

bool IsAt(std::string_view line, std::size_t at, std::string_view token) {
  return at <= line.size() && line.size() - at >= token.size() && AreSame(line.data() + at, token.data(), token.size());
}

// A value that no blank ends goes to the line's end.
std::string_view UpToBlank(std::string_view line, std::size_t begin) {
  std::size_t end = begin;
  while (end < line.size() && line[end] != ' ' && line[end] != '\r' && line[end] != '\n') ++end;
  return {line.data() + begin, end - begin};
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
    const std::string_view column = row.NextColumn();
    record.*field = trailingBlanks == TrailingBlanks::kDropped ? CollectedData::TrimRight(column) : column;
  }
  record.StatisticTime = TOSSpecific::GetLocalTime();
}

// As printed, "A:1 C:2", a token stands one blank behind the value before it, and is the first there if the value has
// no colon. Otherwise each is looked for behind the start of the one before it; a token that is not there costs
// nothing.
void ParseSubStat(ZenxSubStatData& record, const CollectedData& text, std::string_view) {
  const std::string_view line = text.CurrentLine();
  std::size_t from = 0;
  std::size_t expected = 0;
  for (const auto& [token, field, valueEnd] : kTokens) {
    const std::size_t end = IsAt(line, expected, token) ? expected + token.size() : FindTokenEnd(line, token, from);
    if (end == 0) continue;
    const std::string_view value = valueEnd == ValueEnd::kBlank ? UpToBlank(line, end) : UpToCarriageReturn(line, end);
    record.*field = value;
    from = end - token.size() + 1;
    expected = std::ranges::find(value, ':') == value.end() ? end + value.size() + 1 : line.npos;
  }
  record.InstanceID = "Zentraxis:";
  record.InstanceID.append(record.ControllerNum).append("C").append(record.Channel).append("S").append(record.ScsiId);
  record.StatisticTime = TOSSpecific::GetLocalTime();
}
