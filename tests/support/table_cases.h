#pragma once

#include <string>
#include <utility>
#include <vector>

// What a test of a table holds it against: the labels of a block in the order of the tool and the field that each
// feeds, written out in the test.
template <class Record>
using FieldCases = std::vector<std::pair<std::string, std::string Record::*>>;

// "   Label : v<n>" for each label, n being its position.
template <class Record>
std::vector<std::string> LabelledLines(const FieldCases<Record>& cases) {
  std::vector<std::string> lines;
  for (std::size_t index = 0; index < cases.size(); ++index) {
    lines.push_back("   " + cases[index].first + " : v" + std::to_string(index) + "\r\n");
  }
  return lines;
}

// The fields of the record in the cases' order.
template <class Record>
std::vector<std::string> FieldValues(const Record& record, const FieldCases<Record>& cases) {
  std::vector<std::string> values;
  for (const auto& fieldCase : cases) values.push_back(record.*fieldCase.second);
  return values;
}

// What the lines of LabelledLines hold, with the text before and behind each.
inline std::vector<std::string> NumberedValues(std::size_t count, const std::string& before,
                                               const std::string& behind) {
  std::vector<std::string> values;
  for (std::size_t index = 0; index < count; ++index) values.push_back(before + "v" + std::to_string(index) + behind);
  return values;
}

inline std::vector<std::string> Without(std::vector<std::string> lines, std::size_t index) {
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(index));
  return lines;
}

inline std::vector<std::string> WithSwapped(std::vector<std::string> lines, std::size_t first, std::size_t second) {
  std::swap(lines.at(first), lines.at(second));
  return lines;
}

// The values, those from first to last (included) empty.
inline std::vector<std::string> WithEmpty(std::vector<std::string> values, std::size_t first, std::size_t last) {
  for (std::size_t index = first; index <= last; ++index) values.at(index).clear();
  return values;
}

inline std::string Concatenated(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}
