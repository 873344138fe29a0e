#include "host/hxahost/views/level_colour.h"

namespace hxahost {

std::optional<Colour> ColourOf(Level level) {
  switch (level) {
    case Level::kUnsaid: return std::nullopt;
    case Level::kUnknown: return Colour::kMagenta;
    case Level::kWarning: return Colour::kYellow;
    case Level::kCritical: return Colour::kRed;
    default: return Colour::kGreen;
  }
}

}  // namespace hxahost
