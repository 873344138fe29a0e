#pragma once

namespace hxahost {

// Whether a character is a mark that is drawn over the character before it, and takes no column.
bool IsCombining(char32_t code);

}  // namespace hxahost
