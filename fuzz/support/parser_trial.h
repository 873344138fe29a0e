#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "collect/records.h"

// The parsers of one utility's report on a controller.
struct ReportParser {
  // Fills the controller from the report; the end of the text ends it early.
  void (*read)(ZenxController& controller, std::string_view report);
  // The sections of a short report, line ends "\n". Other lines may be between them.
  std::span<const std::string_view> sections;
  // Words that the plug-in itself writes into records.
  std::span<const std::string_view> ownWords;
  // It counts wherever it occurs, so a report that is cut off before it has another meaning; "": there is none.
  std::string_view decidingHeading = {};
};

// Reads a report whole, cut off, and its bytes as junk around a report. Ends the program unless the records contain
// only text of the report, each heading produces at most one record, an incomplete report produces the records before
// the cut, and junk around sections changes nothing.
void TryParser(const ReportParser& parser, std::string_view report);

// Changes an input: mostly like libFuzzer, sometimes by inserting one of the sections between two of its lines.
// Returns the new size.
std::size_t MutateAroundSections(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed,
                                 std::span<const std::string_view> sections);
