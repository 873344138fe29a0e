#pragma once

#include <string>
#include <string_view>

namespace hxahost {

// The text of a state in the colour of what it says first: red for what is lost, yellow for what is at risk or being
// repaired, green for what is in order. Unchanged where it says none of these. The words stay: colour adds nothing
// that is not in them.
std::string InStateColour(std::string_view text);

}  // namespace hxahost
