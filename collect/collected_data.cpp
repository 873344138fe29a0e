#include "collect/collected_data.h"

namespace {

bool IsBlank(char character) { return character == ' ' || character == '\t' || character == '\n'; }

}  // namespace

CollectedData::CollectedData(HostHandle host, std::string_view text) : text_(text), host_(host) {
  std::string_view rest = text_;
  for (std::size_t end = rest.find('\n'); end != rest.npos; end = rest.find('\n')) {
    lines_.push_back(rest.substr(0, end + 1));
    rest.remove_prefix(end + 1);
  }
}

std::string_view CollectedData::FindLine(std::string_view label) {
  for (std::size_t index = 0; index < lines_.size(); ++index) {
    if (!Contains(lines_[index], label)) continue;
    cursor_ = static_cast<int>(index);
    return lines_[index];
  }
  return {};
}

std::string_view CollectedData::FindValue(std::string_view label) { return ValueAfterColon(FindLine(label)); }

std::string_view CollectedData::CurrentLine() const { return lines_.at(static_cast<std::size_t>(cursor_)); }

std::string_view CollectedData::NextLine() {
  ++cursor_;
  return CurrentLine();
}

void CollectedData::StepBack() { --cursor_; }

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
  while (text.size() > 1 && IsBlank(text.front())) text.remove_prefix(1);
  return text;
}

std::string_view CollectedData::TrimRight(std::string_view text) {
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}
