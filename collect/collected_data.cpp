#include "collect/collected_data.h"

#include <algorithm>
#include <utility>

namespace {

// Lines of reports are mostly longer: room for all of them is made at once.
constexpr std::size_t kUsualLineLength = 32;

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\n'; }

// As ValueAfterColon, of a line of the text, which has its one line feed at its end.
std::string_view ValueOfLine(std::string_view line) {
  const std::size_t colon = line.find(':');
  return colon == line.npos ? std::string_view() : line.substr(colon + 1);
}

}  // namespace

CollectedData::CollectedData(HostHandle host, std::string text) : text_(std::move(text)), host_(host) {
  lines_.reserve(text_.size() / kUsualLineLength);
  std::string_view rest = text_;
  for (std::size_t end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    lines_.push_back(rest.substr(0, end + 1));
    rest.remove_prefix(end + 1);
  }
}

std::string_view CollectedData::FindLine(std::string_view label) {
  const auto found = std::ranges::find_if(lines_, [label](std::string_view line) { return Contains(line, label); });
  if (found == lines_.end()) return {};
  cursor_ = static_cast<int>(found - lines_.begin());
  return *found;
}

std::string_view CollectedData::FindValue(std::string_view label) { return ValueOfLine(FindLine(label)); }

std::string_view CollectedData::ValueOfCurrentLine() const { return ValueOfLine(CurrentLine()); }

std::string_view CollectedData::ValueAfterColon(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == line.npos) return {};
  const std::size_t lineFeed = line.find('\n', colon);
  if (lineFeed == line.npos) return {};
  return line.substr(colon + 1, lineFeed - colon);
}

std::string_view CollectedData::NextLineValueIf(std::string_view label) {
  const std::string_view line = NextLine();
  return IsLabelled(line, label) ? ValueOfLine(line) : std::string_view();
}

bool CollectedData::FindColumn(std::string_view line, std::string_view label) {
  const std::size_t found = line.find(label);
  if (found == line.npos) return false;
  labelColumn_ = found;
  return true;
}

std::string_view CollectedData::TrimLeft(std::string_view text) {
  std::size_t blanks = 0;
  while (blanks + 1 < text.size() && IsBlank(text[blanks])) ++blanks;
  return text.substr(blanks);
}

std::string_view CollectedData::TrimRight(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}
