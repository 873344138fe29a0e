#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

// What tools fill lines up with: blanks, tabs, and the line feed that ends each line.
// Most other characters stand behind the blank: one comparison tells them.
inline bool IsBlank(char character) {
  return static_cast<unsigned char>(character) <= ' ' && (character == ' ' || character == '\t' || character == '\n');
}

// How many of eight characters are blanks before the first that is something else.
inline unsigned BlanksBeforeOther(const char* eight) {
  constexpr std::uint64_t kBlanks = 0x2020'2020'2020'2020;
  std::uint64_t characters = 0;
  std::memcpy(&characters, eight, sizeof characters);
  const std::uint64_t others = characters ^ kBlanks;
  const int bits = std::endian::native == std::endian::little ? std::countr_zero(others) : std::countl_zero(others);
  return static_cast<unsigned>(bits) / 8;
}

// The first character from there on that is no blank; the end where all are. Texts are lined up by runs of blanks,
// which are short: eight are compared at once, and a call would cost more than the run.
inline const char* SkipBlanks(const char* at, const char* end) {
  for (unsigned blanks = 8; blanks == 8 && end - at >= 8; at += blanks) blanks = BlanksBeforeOther(at);
  while (at != end && IsBlank(*at)) ++at;
  return at;
}
