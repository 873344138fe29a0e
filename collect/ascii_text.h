#pragma once

#include <algorithm>
#include <string_view>

// What tools fill lines up with, and what ends their lines.
constexpr std::string_view kBlanks = " \t\n";
constexpr std::string_view kBlanksAndLineEnds = " \t\r\n";

// Whether the text contains the part, in exact case.
constexpr bool Contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

// The text without any of the characters at its start, or at its end.
constexpr std::string_view TrimStart(std::string_view text, std::string_view characters) {
  return text.substr(std::min(text.find_first_not_of(characters), text.size()));
}
constexpr std::string_view TrimEnd(std::string_view text, std::string_view characters) {
  return text.substr(0, text.find_last_not_of(characters) + 1);
}

// The text without the blanks, tabs, carriage returns and line feeds at both its ends.
constexpr std::string_view Trimmed(std::string_view text) {
  return TrimEnd(TrimStart(text, kBlanksAndLineEnds), kBlanksAndLineEnds);
}

constexpr bool IsDigit(char character) { return character >= '0' && character <= '9'; }
