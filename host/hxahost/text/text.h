#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

// Text on its way out of the program. What tools print is bytes: nothing says in what they are encoded.
namespace hxahost {

// The bytes themselves when they are valid UTF-8; otherwise each byte as the ISO 8859-1 character that it is.
std::string AsUtf8(std::string_view bytes);

// One character of UTF-8 text.
struct Character {
  char32_t code = 0;
  std::size_t length = 1;  // in bytes
};

// The first character of the text, which must not be empty. What cannot be decoded is taken byte by byte, as code 0, so
// that every loop over characters goes on.
Character NextCharacter(std::string_view utf8);

// Whether a character must not reach a terminal as it is: a control character, one that nobody sees, one that changes
// the direction of the text around it, or a code that is no character.
bool IsUnsafe(char32_t code);

// A character by its number: its UTF-16 code units, one or two, each written by a format of printf for an unsigned
// number. So characters are named in JSON and in MOF.
std::string ByCodeUnits(char32_t code, const char* format);

// UTF-8 with control characters and characters that change the direction of text as escapes (\t, \r, \n, \x1b,
// \u202e): one line, and nothing in it reaches a terminal as a command.
std::string EscapeControls(std::string_view bytes);

// The same for people, without the white space at both ends.
std::string Printable(std::string_view bytes);

// The bytes of the first character, where it is valid UTF-8 and none that EscapeControls escapes; 0 otherwise.
std::size_t PrintableLength(std::string_view bytes);

// The columns that UTF-8 text takes on a terminal.
std::size_t DisplayWidth(std::string_view utf8);

// The text, cut to the columns, with an ellipsis as its last character where something is missing.
std::string CutToWidth(std::string_view utf8, std::size_t columns);

// Paths are UTF-8 everywhere in the program.
std::filesystem::path PathFromUtf8(std::string_view text);
std::string Utf8FromPath(const std::filesystem::path& path);

}  // namespace hxahost
