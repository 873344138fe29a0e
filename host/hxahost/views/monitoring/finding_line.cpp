#include "host/hxahost/views/monitoring/finding_line.h"

#include <cstddef>

#include <fmt/core.h>

#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

// A log entry can be very long; its beginning contains the words about health.
constexpr std::size_t kWidestText = 160;

}  // namespace

std::string SubjectText(const Finding& finding) {
  const std::string name = Printable(finding.name);
  const bool isNamedTwice = finding.identifier.empty() || finding.identifier == finding.name;
  return isNamedTwice ? name : fmt::format("{} [{}]", name, Printable(finding.identifier));
}

std::string QuotedText(const Finding& finding) {
  return fmt::format("\"{}\"", CutToWidth(Printable(finding.text), kWidestText));
}

std::string FindingText(const Finding& finding) {
  return fmt::format("{}: {}: {} {}: {}", SeverityWord(finding.severity), SubjectText(finding),
                     Printable(finding.property), QuotedText(finding), TextOf(finding.meaning));
}

}  // namespace hxahost
