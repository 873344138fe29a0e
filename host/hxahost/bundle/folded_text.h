#pragma once

#include <string>
#include <string_view>

#include "host/hxahost/text/utf8.h"

// The characters of texts that mix encodings, so that a name is found however it is written.
namespace hxahost {

enum class Reading {
  kUtf8,    // a byte that is not UTF-8 is ISO 8859-1; "&amp;" and "&#38;" are one character
  kLatin1,  // every byte is ISO 8859-1
};

// The first character of the text, which must not be empty. Its code is not folded.
Character FirstCharacter(std::string_view text, Reading reading = Reading::kUtf8);

// The character in lower case; a backslash as a slash.
char32_t Folded(char32_t code);

std::u32string FoldedCharacters(std::string_view text);

// The same in UTF-8.
std::string FoldCase(std::string_view text);

std::string Utf8Of(std::u32string_view characters);

}  // namespace hxahost
