#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <vector>

// A label that a tool prints and the name of the field that its value belongs in.
struct LabelRow {
  std::string label;
  std::string field;
};

using Labels = std::vector<LabelRow>;

// Parses lines of tool text and gives the fields that the labels filled, as "Name=value".
using ParseLines = std::function<std::set<std::string>(const std::string& lines)>;

constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

// "   label   : v0" and so on, one line a label. The value of row 3 is v3.
std::string LabelLine(const Labels& labels, std::size_t row);
std::string LabelLines(const Labels& labels);

// What the rows fill when values are kept as a scanner cuts them: "Name= v0\r\n".
std::set<std::string> FilledBy(const Labels& labels, const std::function<bool(std::size_t row)>& isFilled);

// Holds a parser that reads one label a line, in order, against its table: every label there, each missing in turn,
// each misspelt in turn at its first and its last letter, each two neighbours swapped. Without its label, the row that
// takesLine names uses up the line of the next row.
void ExpectReadInOrder(const Labels& labels, const ParseLines& parse, std::size_t takesLine = kNoRow);
