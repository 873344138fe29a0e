#pragma once

#include <string>
#include <string_view>

namespace hxahost {

// The text as a MOF string: in quotes, with whatever has a meaning in MOF or must not reach a terminal escaped. CIM has
// no string with U+0000 in it: that is written as its picture, U+2400. A long text is several strings, one a line, each
// after the first with the indent before it: compilers put them together, and their buffers have room for a line.
std::string MofText(std::string_view bytes, std::string_view indent = "");

}  // namespace hxahost
