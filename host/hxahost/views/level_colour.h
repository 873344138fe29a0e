#pragma once

#include <optional>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/terminal/colour.h"

namespace hxahost {

// Red is critical, yellow a warning, magenta unknown, green fine; no colour if no state is known.
std::optional<Colour> ColourOf(Level level);

}  // namespace hxahost
