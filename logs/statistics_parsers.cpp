#include "logs/statistics_parsers.h"

#include <algorithm>
#include <string>

#include <fmt/core.h>

#include "collect/line_scanner.h"
#include "collect/tool_text.h"
#include "logs/labels.h"
#include "logs/statistics_records.h"
#include "logs/table_columns.h"
#include "plugin/host_interface/services.h"

using NKVRHXA20::TOSSpecific;

namespace {

// The text from there to one character before the line feed that ends the line, which is where the carriage return
// is.
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

// The value of a token, up to the next blank. The last one on a line has none after it and runs to the line's end.
std::string_view CutValue(std::string_view line, std::size_t begin, bool isLast) {
  if (isLast) return UpToCarriageReturn(line, begin);
  const std::size_t blank = line.find(' ', begin);
  return line.substr(begin, (blank == line.npos ? line.find_first_of("\r\n", begin) : blank) - begin);
}

}  // namespace

void ParseBadStripe(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber) {
  constexpr std::string_view kDrive = kBadStripeLabels[0].label;
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
  for (const auto& token : kSubStatLabels) {
    const std::size_t at = line.find(token.label, from);
    if (at == line.npos) continue;
    record.*token.field = CutValue(line, at + token.label.size(), token.field == &ZenxSubStatData::Cur_Txer_p);
    from = at + 1;
  }
  record.InstanceID = fmt::format("Zentraxis:{}C{}S{}", record.ControllerNum, record.Channel, record.ScsiId);
  record.StatisticTime = TOSSpecific::GetLocalTime();
}
