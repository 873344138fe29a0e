#include "host/hxahost/result/raw_text_values.h"

#include <algorithm>
#include <optional>
#include <string_view>

#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

using Values = std::vector<std::string>;

bool IsBlank(std::string_view line) { return Trim(line).empty(); }

// "-----", "+---+---+", "====".
bool IsRule(std::string_view line) { return !IsBlank(line) && line.find_first_not_of("-+=| \t\r\n") == line.npos; }

// Pieces between separators, trimmed, without empty ones.
Values Pieces(std::string_view text, std::string_view separator) {
  Values pieces;
  for (const std::string_view piece : Split(text, separator)) {
    if (!Trim(piece).empty()) pieces.emplace_back(Trim(piece));
  }
  return pieces;
}

// <event id="0x00000204" text="..." />: the attributes. A tag that encloses others is a heading.
Values AttributeValues(std::string_view line) {
  Values values;
  if (!line.ends_with("/>")) return values;
  for (std::size_t begin = line.find("=\""); begin != line.npos; begin = line.find("=\"", begin)) {
    begin += 2;
    const std::size_t end = line.find('"', begin);
    if (end == line.npos) break;
    if (end > begin) values.emplace_back(Trim(line.substr(begin, end - begin)));
    begin = end + 1;
  }
  return values;
}

// "A:1 C:1 I:0 PARAMS:0x1f": each word is a label with its value; otherwise the line has another form.
Values PairValues(std::string_view line) {
  Values values;
  const Values words = Pieces(line, " ");
  if (words.size() < 2) return values;
  for (const std::string& word : words) {
    const std::size_t colon = word.find(':');
    if (colon == word.npos || colon == 0 || colon + 1 == word.size()) return {};
    values.push_back(word.substr(colon + 1));
  }
  return values;
}

// "Label : value", "Label = value". The label ends at the first colon or equals sign.
Values ValueAfterLabel(std::string_view line) {
  const std::size_t end = line.find_first_of(":=");
  if (end == line.npos || IsBlank(line.substr(0, end)) || IsBlank(line.substr(end + 1))) return {};
  return {std::string(Trim(line.substr(end + 1)))};
}

// "Logical drive 2 - 3".
Values CountedValue(std::string_view line) {
  constexpr std::string_view kDash = " - ";
  const std::size_t dash = line.rfind(kDash);
  if (dash == line.npos) return {};
  const std::string_view count = Trim(line.substr(dash + kDash.size()));
  return IsDigits(count) ? Values{std::string(count)} : Values();
}

// "Device is a Hard drive", "Device is an Enclosure services device".
Values KindValue(std::string_view line) {
  for (const std::string_view words : {" is an ", " is a "}) {
    const std::size_t begin = line.find(words);
    if (begin != line.npos) return {std::string(Trim(line.substr(begin + words.size())))};
  }
  return {};
}

// "0000120c": a code without other text.
Values CodeValue(std::string_view line) {
  constexpr std::size_t kDigits = 8;
  if (line.size() != kDigits || line.find_first_not_of("0123456789abcdefABCDEF") != line.npos) return {};
  return {std::string(line)};
}

// Columns without bars are separated by two or more blanks.
Values ColumnValues(std::string_view line) {
  constexpr std::size_t kFewest = 3;
  Values values = Pieces(line, "  ");
  return values.size() < kFewest ? Values() : values;
}

// A line of the RAID manager's log begins with its time, which is published in another form.
Values LogValues(std::string_view line) {
  if (line.find('\t') == line.npos) return {};
  Values values = Pieces(line.substr(line.find('\t')), "\t");
  return values;
}

Values LineValues(std::string_view line) {
  const std::string_view text = Trim(line);
  if (text.starts_with("Command completed") || text.starts_with("Command aborted")) return {};
  if (text.starts_with('<')) return AttributeValues(text);
  if (text.starts_with('|')) return Pieces(text, "|");
  for (const auto form : {LogValues, PairValues, ValueAfterLabel, CountedValue, KindValue, CodeValue, ColumnValues}) {
    if (Values values = form(text); !values.empty()) return values;
  }
  return {};
}

// The column in which the value of a labelled line begins; empty for a line of another form.
std::optional<std::size_t> ValueColumn(std::string_view line) {
  const std::size_t colon = line.find(" : ");
  if (colon == line.npos) return std::nullopt;
  const std::size_t value = line.find_first_not_of(kWhiteSpace, colon + 2);
  return value == line.npos ? std::nullopt : std::optional(value);
}

// A continuation line: it has no label, and begins in the column of the value.
bool Continues(std::string_view line, std::size_t column) {
  const std::size_t begin = line.find_first_not_of(kWhiteSpace);
  return begin != line.npos && begin == column && line.find(':') == line.npos;
}

// The names of a table's columns are directly above a rule.
bool IsHead(std::span<const std::string> lines, std::size_t index) {
  return index + 1 < lines.size() && IsRule(lines[index + 1]) && ValueAfterLabel(lines[index]).empty() &&
         (index == 0 || !Trim(lines[index]).starts_with('|') || IsRule(lines[index - 1]));
}

}  // namespace

std::vector<RawValues> ReadRawValues(std::span<const std::string> lines) {
  std::vector<RawValues> all;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    if (IsBlank(lines[index]) || IsRule(lines[index]) || IsHead(lines, index)) continue;
    RawValues read{index, 1, LineValues(lines[index])};
    if (read.values.empty()) continue;
    if (const auto column = ValueColumn(lines[index])) {
      while (index + 1 < lines.size() && Continues(lines[index + 1], *column)) {
        ++index;
        ++read.lineCount;
        read.values.back() += " " + std::string(Trim(lines[index]));
      }
    }
    all.push_back(std::move(read));
  }
  return all;
}

}  // namespace hxahost
