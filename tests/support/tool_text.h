#pragma once

#include <string>
#include <string_view>

// Text as a tool prints it: every line of the literal ends in carriage return and line feed.
inline std::string CrLf(std::string_view text) {
  std::string converted;
  for (const char character : text) {
    if (character == '\n') converted += '\r';
    converted += character;
  }
  return converted;
}

// The text with each occurrence of the one replaced by the other.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}
