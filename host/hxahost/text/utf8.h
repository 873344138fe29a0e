#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

// Tools print bytes in an unknown encoding. The program itself works with UTF-8.
namespace hxahost {

// The bytes unchanged if they are valid UTF-8; otherwise each byte is converted as an ISO 8859-1 character.
std::string AsUtf8(std::string_view bytes);

// One character of UTF-8 text.
struct Character {
  char32_t code = 0;
  std::size_t length = 1;  // in bytes
};

// The first character of the text, which must not be empty. Invalid bytes are returned one by one, as code 0, so that
// every loop over characters advances.
Character NextCharacter(std::string_view utf8);

void AppendUtf8(std::string& text, char32_t code);

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
