#pragma once

#include <string_view>

#include "collect/collected_data.h"

// Tells which lines of a table contain a label. It is looked for once in all that lies ahead, and again only behind a
// line that has it: a search of each line by itself would cost as much as reading its row does.
class LabelAhead {
 public:
  // The text must outlive it.
  LabelAhead(const CollectedData& text, std::string_view label) : end_(text.EndOfLines()), label_(label) {
    LookAhead(text.CurrentLine().data());
  }

  // Whether the line contains the label. Lines are asked about from the first one to the last.
  bool IsOn(std::string_view line) {
    if (at_ < line.data()) LookAhead(line.data());
    return at_ < line.data() + line.size();
  }

 private:
  void LookAhead(const char* from);

  const char* const end_;
  const std::string_view label_;
  const char* at_;  // where the label stands next; the end where it does not
};
