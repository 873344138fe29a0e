#include "collect/collected_data.h"

#include <stdexcept>
#include <utility>

#include "collect/text_search.h"

CollectedData::CollectedData(HostHandle host, std::string text)
    : text_(std::move(text)), lines_(std::string_view(text_).substr(0, text_.rfind('\n') + 1)), host_(host) {
  Advance();
}

void CollectedData::ThrowNoLine() { throw std::out_of_range("there is no line left"); }

void CollectedData::AdvanceOutside() {
  if (outside_ == -1 && !lines_.empty()) return JumpTo(lines_.data());
  outside_ = outside_ == -1 ? 1 : outside_ + 1;
}

void CollectedData::StepBack() {
  const bool isInside = outside_ == 0 || outside_ == 1;
  if (!isInside || begin_ == lines_.data()) {
    begin_ = end_ = outside_ > 1 ? linesEnd_ : lines_.data();
    outside_ = isInside ? -1 : outside_ - 1;
  } else if (previous_ < begin_) {
    outside_ = 0;
    end_ = begin_;
    begin_ = previous_;
  } else {
    JumpTo(begin_ - 1);
  }
}

// To the line that the position is in.
void CollectedData::JumpTo(const char* position) {
  const std::string_view before(lines_.data(), position);
  outside_ = 0;
  begin_ = previous_ = lines_.data() + (before.rfind('\n') + 1);
  end_ = Find(position, linesEnd_, '\n') + 1;
}

bool CollectedData::FindLabel(std::string_view line, std::string_view label) {
  const std::size_t found = FindInLine(line, label);
  if (found == line.npos) return false;
  labelColumn_ = found;
  return true;
}

std::string_view CollectedData::FindLine(std::string_view label) {
  // No line contains a label that goes on behind a line feed.
  const bool fitsALine = label.find('\n') >= label.size() - 1;
  const std::size_t found = fitsALine ? FindInReport(lines_, label) : lines_.npos;
  if (found >= lines_.size()) return {};
  JumpTo(lines_.data() + found);
  return CurrentLine();
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
