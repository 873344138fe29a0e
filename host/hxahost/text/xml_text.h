#pragma once

#include <string>
#include <string_view>

namespace hxahost {

// The text in UTF-8 without the characters that XML has no place for: a control character is its picture (U+2400 and
// what follows), a code that is no character U+FFFD.
std::string LegalXmlText(std::string_view bytes);

}  // namespace hxahost
