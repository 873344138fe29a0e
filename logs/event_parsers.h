#pragma once

#include <cstdint>
#include <string_view>

class CollectedData;
struct ZenxEventDddData;
struct ZenxEventSoftData;
struct ZenxEventHardData;

// Fills the record from the current line, one row of the defunct-drive log. Throws THXAException where date and time
// of the row are none.
void ParseDddRow(ZenxEventDddData& record, const CollectedData& text, std::string_view controllerNumber,
                 std::uint32_t entryNumber);

// Fill the record from the current line, the log's title, and the lines after it up to "Command completed
// successfully", which is current afterwards. Throw std::out_of_range where that line is missing.
void ParseSoftLog(ZenxEventSoftData& record, CollectedData& text, std::string_view controllerNumber);
void ParseHardLog(ZenxEventHardData& record, CollectedData& text, std::string_view controllerNumber);
