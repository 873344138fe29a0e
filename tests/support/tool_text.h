#pragma once

#include <string>
#include <string_view>

// Tool text as it comes from a tool: every line of the literal ends in carriage return and line feed.
inline std::string CrLf(std::string_view text) {
  std::string converted;
  for (const char character : text) {
    if (character == '\n') converted += '\r';
    converted += character;
  }
  return converted;
}
