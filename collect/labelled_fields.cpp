#include "collect/labelled_fields.h"

std::string_view GetSectionValue(std::string_view label, std::string_view text, const Section& section) {
  constexpr auto kNone = std::string_view::npos;
  const std::size_t from = section.start.empty() ? 0 : text.find(section.start);
  const std::size_t found = from == kNone ? kNone : text.find(label, from);
  if (found == kNone) return {};
  if (!section.end.empty() && text.find(section.end, found + 1) == kNone) return {};
  const std::size_t colon = text.find(':', found);
  const std::size_t lineFeed = colon == kNone ? kNone : text.find('\n', colon);
  if (lineFeed == kNone || lineFeed < colon + 4) return {};
  return text.substr(colon + 2, lineFeed - 1 - (colon + 2));
}
