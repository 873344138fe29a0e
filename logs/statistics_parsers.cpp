#include "logs/statistics_parsers.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "collect/collected_data.h"
#include "collect/each_index.h"
#include "collect/text_search.h"
#include "collect/tool_text.h"
#include "logs/statistics_records.h"
#include "logs/table_columns.h"
#include "plugin/host_interface/services.h"

using NKVRHXA20::TOSSpecific;

namespace {

// The text from there to one character before the line feed that ends the line, which is where the carriage return
// stands.
std::string_view UpToCarriageReturn(std::string_view line, std::size_t begin) {
  const std::size_t end = std::max(line.size() - 1, begin + 1) - 1;
  return line.substr(begin, end - begin);
}

std::string Normalised(std::string_view number) { return std::to_string(LeadingNumber(number)); }

enum class TrailingBlanks { kKept, kDropped };

struct Column {
  FieldText ZenxEventData::*field;
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
  FieldText ZenxSubStatData::*field;
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

// Every line has an end, so no value runs past it.
bool EndsValue(char character) { return character == ' ' || character == '\r' || character == '\n'; }

// A line that is read from left to right, and where the next token may stand.
struct TokenLine {
  std::string_view text;
  std::size_t from = 0;      // behind the start of the token before it
  std::size_t expected = 0;  // where it stands as printed: one blank behind a value without a colon

  // The value behind a token that ends there, and where the next one is expected.
  std::string_view ValueUpToBlank(std::size_t begin) {
    std::size_t end = begin;
    bool hasColon = false;
    for (; !EndsValue(text[end]); ++end) hasColon = hasColon || text[end] == ':';
    expected = hasColon ? text.npos : end + 1;
    return {text.data() + begin, end - begin};
  }
};

// Each token has a reader of its own, so that the compiler knows what it compares.
template <std::size_t kIndex>
void ReadToken(ZenxSubStatData& record, TokenLine& line) {
  constexpr Token kToken = kTokens[kIndex];
  const std::size_t end = IsAt(line.text, line.expected, kToken.text) ? line.expected + kToken.text.size()
                                                                      : FindTokenEnd(line.text, kToken.text, line.from);
  if (end == 0) return;
  line.from = end - kToken.text.size() + 1;
  const std::string_view value =
      kToken.end == ValueEnd::kBlank ? line.ValueUpToBlank(end) : UpToCarriageReturn(line.text, end);
  record.*kToken.field = value;
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
  ForEachIndex<std::size(kColumns)>([&](auto index) {
    constexpr Column kColumn = kColumns[index];
    const std::string_view cut = row.NextColumn();
    record.*kColumn.field = kColumn.trailingBlanks == TrailingBlanks::kKept ? cut : CollectedData::TrimRight(cut);
  });
  record.StatisticTime = TOSSpecific::GetLocalTime();
}

// As printed, "A:1 C:2", a token stands one blank behind the value before it, and is the first there if the value has
// no colon. Otherwise each is looked for behind the start of the one before it; a token that is not there costs
// nothing.
void ParseSubStat(ZenxSubStatData& record, const CollectedData& text, std::string_view) {
  TokenLine line = {text.CurrentLine()};
  ForEachIndex<std::size(kTokens)>([&](auto index) { ReadToken<index>(record, line); });
  record.InstanceID = "Zentraxis:";
  record.InstanceID.append(record.ControllerNum).append("C").append(record.Channel).append("S").append(record.ScsiId);
  record.StatisticTime = TOSSpecific::GetLocalTime();
}
