#pragma once

#include <optional>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/terminal/colour.h"

namespace hxahost {

// Red is critical, yellow a warning, magenta unknown, green all that is fine; none where nothing is said.
std::optional<Colour> ColourOf(Level level);

}  // namespace hxahost
