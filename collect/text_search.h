#pragma once

#include <cstddef>
#include <string_view>

// Where the label stands first in a whole report, from a position on; npos where it does not. The same as
// std::string_view::find, which stops at every character that the label begins with: at each "C" and "S" of a report.
// This one stops at the label's rarest character, and reads a report without the label in one go.
std::size_t FindInReport(std::string_view report, std::string_view label, std::size_t from = 0);

// Whether a whole report contains the label, in exact case.
inline bool ReportContains(std::string_view report, std::string_view label) {
  return FindInReport(report, label) != report.npos;
}
