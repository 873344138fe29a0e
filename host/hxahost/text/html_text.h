#pragma once

#include <string>
#include <string_view>

namespace hxahost {

// Text for an element or an attribute of HTML: printable, one line, without markup.
std::string HtmlText(std::string_view bytes);

}  // namespace hxahost
