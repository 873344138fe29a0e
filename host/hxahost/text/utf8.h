#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

// What tools print is bytes: nothing says in what they are encoded. The program itself works with UTF-8.
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

// Calls back with the code and the bytes of each character.
template <class Call>
void ForEachCharacter(std::string_view utf8, const Call& call) {
  while (!utf8.empty()) {
    const auto [code, length] = NextCharacter(utf8);
    call(code, utf8.substr(0, length));
    utf8.remove_prefix(length);
  }
}

// Paths are UTF-8 everywhere in the program.
std::filesystem::path PathFromUtf8(std::string_view text);
std::string Utf8FromPath(const std::filesystem::path& path);

}  // namespace hxahost
