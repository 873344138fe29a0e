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

std::vector<std::string> WrappedBehind(const std::string& head, std::string_view text, const Layout& layout) {
  std::vector<std::string> lines = WrapWords(text, layout.width - kIncidentIndent);
  for (std::string& line : lines) line.insert(0, &line == &lines.front() ? head : std::string(kIncidentIndent, ' '));
  return lines;
}

std::vector<std::string> IncidentLines(const Incident& incident, const Layout& layout) {
  const std::string indent(kIncidentIndent, ' ');
  std::vector<std::string> lines = WrappedBehind(indent, incident.action, layout);
  lines.insert(lines.begin(), SeverityHead(IncidentWord(incident), incident.severity, layout) +
                                  CutToWidth(incident.headline, layout.width - kIncidentIndent));
  return lines;
}

}  // namespace hxahost
