#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Converts text to a form that is safe on a terminal.
namespace hxahost {

// Whether a character is unsafe on a terminal: a control character, an invisible one, one that changes the direction of
// the text around it, or a code that is not a character.
bool IsUnsafe(char32_t code);

// UTF-8 with escapes (\t, \r, \n, \x1b, \u202e) for control characters and characters that change the direction of
// text: one line, without commands for a terminal.
std::string EscapeControls(std::string_view bytes);

// The same for people, without the white space at both ends.
std::string Printable(std::string_view bytes);

// The length in bytes of the first character, if it is valid UTF-8 and bundles contain it unescaped; otherwise 0.
std::size_t PrintableLength(std::string_view bytes);

}  // namespace hxahost
