#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Converts text to a form that is safe on a terminal.
namespace hxahost {

// Finds the characters of a text that are unsafe to show, one after the other: control characters, invisible ones,
// those that change the direction of the text around them, codes that are not characters, and more marks on one
// character than any language needs.
class UnsafeCharacters {
 public:
  bool Has(char32_t next);

 private:
  std::size_t marks_ = 0;  // on the current character
};

// UTF-8 with escapes (\t, \r, \n, \x1b, \u202e) for unsafe characters: one line, without commands for a terminal.
std::string EscapeControls(std::string_view bytes);

// The same for people, without the white space at both ends.
std::string Printable(std::string_view bytes);

// The length in bytes of the first character, if it is valid UTF-8 and a bundle of any version may contain it
// unescaped; otherwise 0.
std::size_t PrintableLength(std::string_view bytes);

}  // namespace hxahost
