#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text as it may reach a terminal.
namespace hxahost {

// Whether a character must not reach a terminal as it is: a control character, one that nobody sees, one that changes
// the direction of the text around it, or a code that is no character.
bool IsUnsafe(char32_t code);

// UTF-8 with control characters and characters that change the direction of text as escapes (\t, \r, \n, \x1b,
// \u202e): one line, and nothing in it reaches a terminal as a command.
std::string EscapeControls(std::string_view bytes);

// The same for people, without the white space at both ends.
std::string Printable(std::string_view bytes);

// The bytes of the first character, where it is valid UTF-8 and a bundle has it as it is; 0 otherwise.
std::size_t PrintableLength(std::string_view bytes);

}  // namespace hxahost
