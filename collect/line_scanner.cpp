#include "collect/line_scanner.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "collect/ascii_text.h"

CollectedData::CollectedData(HostHandle host, std::string text) : text_(std::move(text)), host_(host) {
  std::string_view rest = text_;
  for (std::size_t end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    lines_.push_back(rest.substr(0, end + 1));
    rest.remove_prefix(end + 1);
  }
}

std::string_view CollectedData::FindLine(std::string_view label) {
  const auto found = std::ranges::find_if(lines_, [label](std::string_view line) { return Contains(line, label); });
  if (found == lines_.end()) return {};
  cursor_ = found - lines_.begin();
  return *found;
}

std::string_view CollectedData::FindValue(std::string_view label) { return ValueAfterColon(FindLine(label)); }

std::string_view CollectedData::CurrentLine() const {
  try {
    return lines_.at(static_cast<std::size_t>(cursor_));
  } catch (const std::out_of_range&) {
    // This text gets into the log; the library's own differs from system to system.
    throw std::out_of_range("there is no line left");
  }
}

std::string_view CollectedData::NextLine() {
  ++cursor_;
  return CurrentLine();
}

std::string_view CollectedData::ValueOfCurrentLine() const { return ValueAfterColon(CurrentLine()); }

std::string_view CollectedData::ValueAfterColon(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == line.npos) return {};
  const std::size_t lineFeed = line.find('\n', colon);
  if (lineFeed == line.npos) return {};
  return line.substr(colon + 1, lineFeed - colon);
}

std::string_view CollectedData::NextLineValueIf(std::string_view label) {
  const std::string_view line = NextLine();
  return Contains(line, label) ? ValueAfterColon(line) : std::string_view();
}

std::string_view CollectedData::TrimLeft(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  return text.empty() ? text : text.substr(std::min(first, text.size() - 1));
}

std::string_view CollectedData::TrimRight(std::string_view text) { return TrimEnd(text, kBlanks); }
