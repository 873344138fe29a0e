#pragma once

#include <string>
#include <string_view>

namespace hxahost {

// The text in UTF-8 without characters that XML does not permit: a control character becomes its picture (U+2400 and
// following), a code that is not a character becomes U+FFFD.
std::string LegalXmlText(std::string_view bytes);

}  // namespace hxahost
