#include "host/hxahost/views/incident_lines.h"

#include <algorithm>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/terminal/colour.h"
#include "host/hxahost/terminal/wrap.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/views/level_colour.h"

namespace hxahost {

std::string Painted(const std::string& text, Level level, const Layout& layout) {
  const auto colour = ColourOf(level);
  return layout.hasColours && colour ? InColour(text, *colour) : text;
}

std::string SeverityHead(std::string_view word, Severity severity, const Layout& layout) {
  return Painted(std::string(word), LevelOf(severity), layout) + std::string(kIncidentIndent - word.size(), ' ');
}

std::string Tally(const Incidents& incidents) {
  std::vector<std::string> counts;
  for (const Severity severity : {Severity::kCritical, Severity::kWarning, Severity::kUnknown}) {
    const auto count = std::ranges::count(incidents, severity, &Incident::severity);
    if (count > 0) counts.push_back(fmt::format("{} {}", count, SeverityWord(severity)));
  }
  return fmt::format("{}", fmt::join(counts, ", "));
}

std::vector<std::string> IncidentLines(const Incident& incident, const Layout& layout) {
  const std::size_t width = layout.width - kIncidentIndent;
  std::vector<std::string> lines = {SeverityHead(IncidentWord(incident), incident.severity, layout) +
                                    CutToWidth(incident.headline, width)};
  for (const std::string& line : WrapWords(incident.action, width)) {
    lines.push_back(std::string(kIncidentIndent, ' ') + line);
  }
  return lines;
}

}  // namespace hxahost
