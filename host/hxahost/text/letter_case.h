#pragma once

namespace hxahost {

// The small letter of a capital one in the Latin, Greek, Cyrillic and Armenian scripts, and one letter for those that
// are written in several ways; any other character unchanged.
char32_t FoldCase(char32_t code);

}  // namespace hxahost
