#pragma once

#include <cstring>

// What tools fill lines up with: blanks, tabs, and the line feed that ends each line.
inline bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\n'; }

// The first character from there on that is no blank; the end where all are. Texts are lined up by runs of blanks,
// which are short: four are compared at once, and a call would cost more than the run.
inline const char* SkipBlanks(const char* at, const char* end) {
  while (end - at >= 4 && std::memcmp(at, "    ", 4) == 0) at += 4;
  while (at != end && IsBlank(*at)) ++at;
  return at;
}
