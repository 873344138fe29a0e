#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

// What of a tool's text is data.
namespace hxahost {

// Lines that give values together: one, or a line and those that continue it.
struct RawValues {
  std::size_t firstLine = 0;
  std::size_t lineCount = 1;
  std::vector<std::string> values;  // trimmed, at least one
};

// The data of a text in its order. Headings, rules, heads of tables, blank lines, closing lines and whatever has no
// form that is known give none.
std::vector<RawValues> ReadRawValues(std::span<const std::string> lines);

}  // namespace hxahost
