#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/terminal/layout.h"

// Incidents as lines of text for people.
namespace hxahost {

// "critical "
inline constexpr std::size_t kIncidentIndent = 9;

// The text in the colour of the level, if the layout has colours.
std::string Painted(const std::string& text, Level level, const Layout& layout);

// The word in its colour, with blanks up to the indent.
std::string SeverityHead(std::string_view word, Severity severity, const Layout& layout);

// "4 critical, 1 warning"; "" if nothing is wrong.
std::string Tally(const Incidents& incidents);

// The text behind the head, which is as wide as the indent; further lines are indented.
std::vector<std::string> WrappedBehind(const std::string& head, std::string_view text, const Layout& layout);

// The headline after its severity, and below it, indented, the action.
std::vector<std::string> IncidentLines(const Incident& incident, const Layout& layout);

}  // namespace hxahost
