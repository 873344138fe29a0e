#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/terminal/layout.h"

namespace hxahost {

constexpr std::size_t kIncidentIndent = 9;  // "critical "

// The text in the colour of the level, where the layout has colours.
std::string Painted(const std::string& text, Level level, const Layout& layout);

// "4 critical, 1 warning"; "" where nothing is wrong.
std::string Tally(const Incidents& incidents);

// The headline, the severity before it, then what to do; further lines are indented.
std::vector<std::string> IncidentLines(const Incident& incident, const Layout& layout);

}  // namespace hxahost
