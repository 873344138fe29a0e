#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

// Finds the data in a tool's text.
namespace hxahost {

// The values of a line, and the lines that continue it.
struct RawValues {
  std::size_t firstLine = 0;
  std::size_t lineCount = 1;
  std::vector<std::string> values;  // trimmed, at least one
};

// The data of a text in its order. Headings, rules, heads of tables, blank lines, closing lines and lines of unknown
// form contain none.
std::vector<RawValues> ReadRawValues(std::span<const std::string> lines);

}  // namespace hxahost
