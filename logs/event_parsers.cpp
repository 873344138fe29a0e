#include "logs/event_parsers.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

#include <fmt/core.h>

#include "collect/ascii_text.h"
#include "collect/line_scanner.h"
#include "collect/tool.h"
#include "logs/event_records.h"
#include "logs/table_columns.h"

using NKVRHXA20::TCIMDateTime;

namespace {

// "| 03/15/2005 | 14:02:33 | 1 | 3 | 04 | Drive did not answer"; the text comes last.
constexpr std::string ZenxEventDddData::*kDddColumns[] = {
    &ZenxEventDddData::Date, &ZenxEventDddData::Time,   &ZenxEventDddData::Channel,
    &ZenxEventDddData::ID,   &ZenxEventDddData::Reason,
};

// The characters that the text has of the piece.
std::string_view Piece(std::string_view text, std::size_t offset, std::size_t length) {
  return text.substr(std::min(offset, text.size()), length);
}

// "03/15/2005" and "14:02:33" to "20050315140233.000000+000".
std::string TimestampText(std::string_view date, std::string_view time) {
  return fmt::format("{}{}{}{}{}{}.000000+000", Piece(date, 6, 4), Piece(date, 0, 2), Piece(date, 3, 2),
                     Piece(time, 0, 2), Piece(time, 3, 2), Piece(time, 6, 2));
}

std::string FourHexDigits(std::uint32_t number) { return fmt::format("{:04x}", number); }

// A line without hexadecimal digits counts as 0, a number that needs more than 32 bits as the largest. A minus sign
// gives the two's complement, as %x of the C library does.
std::uint32_t ReadCode(std::string_view line) {
  constexpr long long kLargest = std::numeric_limits<std::uint32_t>::max();
  const long long number = std::strtoll(std::string(line).c_str(), nullptr, 16);
  return static_cast<std::uint32_t>(number < -kLargest ? kLargest : std::min(number, kLargest));
}

// These logs carry no time; every one of them gets the same, so that nobody takes it for a real one.
TCIMDateTime FixedTime() { return TCIMDateTime(2000, 1, 1, 1, 1, 1, 1, 1); }

template <class Record>
void ParseCodes(Record& record, CollectedData& text, std::string_view controllerNumber) {
  record.Controller = controllerNumber;
  record.LogTitle = text.CurrentLine();
  for (text.NextLine(); !Contains(text.CurrentLine(), kCommandCompleted); text.NextLine()) {
    if (!Contains(text.CurrentLine(), "-----------")) record.Codes.push_back(ReadCode(text.CurrentLine()));
  }
  record.MessageTimestamp = FixedTime();
  record.RecordID = "1";
}

}  // namespace

void ParseDddRow(ZenxEventDddData& record, const CollectedData& text, std::string_view controllerNumber,
                 std::uint32_t entryNumber) {
  record.Controller = controllerNumber;
  TableRow row(text.CurrentLine());
  for (const auto field : kDddColumns) record.*field = row.NextColumn();
  record.Descrip = row.LastColumn();
  record.MessageTimestamp = TCIMDateTime(TimestampText(record.Date, record.Time));
  record.RecordID = FourHexDigits(entryNumber);
}

void ParseSoftLog(ZenxEventSoftData& record, CollectedData& text, std::string_view controllerNumber) {
  ParseCodes(record, text, controllerNumber);
}

void ParseHardLog(ZenxEventHardData& record, CollectedData& text, std::string_view controllerNumber) {
  ParseCodes(record, text, controllerNumber);
}
