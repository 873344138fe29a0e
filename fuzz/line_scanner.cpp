// The line scanner and the cuts: the first text of the input selects the operations, the second is scanned.
#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "collect/ascii_text.h"
#include "collect/labelled_fields.h"
#include "collect/line_scanner.h"
#include "collect/tool_text.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "logs/table_columns.h"

namespace {

// The lines, cut by the simplest possible code.
std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::string line;
  for (const char character : text) {
    line += character;
    if (character != '\n') continue;
    lines.push_back(line);
    line.clear();
  }
  return lines;
}

bool IsPart(std::string_view text, std::string_view part) { return part.empty() || text.find(part) != text.npos; }

// Compares the scanner with a cursor into lines that does the same.
class Comparison {
 public:
  explicit Comparison(const std::string& text) : scanner_(nullptr, text), lines_(Lines(text)) {}

  void Do(char step, const std::string& label) {
    switch (step) {
      case 'n': return Read([&] { return scanner_.NextLine(); }, ++cursor_);
      case 'c': return Read([&] { return scanner_.CurrentLine(); }, cursor_);
      case 'v': return ReadValue([&] { return scanner_.ValueOfCurrentLine(); }, cursor_, "");
      case 'i': return ReadValue([&] { return scanner_.NextLineValueIf(label); }, ++cursor_, label);
      case 'f': return Find(label);
      case 'b':
        if (cursor_ < 0) return;  // a step back follows a step
        scanner_.StepBack();
        --cursor_;
        return;
      default: return;
    }
  }

 private:
  bool IsLine(long index) const { return index >= 0 && static_cast<std::size_t>(index) < lines_.size(); }
  const std::string& Line(long index) const { return lines_[static_cast<std::size_t>(index)]; }

  template <class Reader>
  void Read(const Reader& read, long index) {
    try {
      const std::string_view line = read();
      Require(IsLine(index) && line == Line(index), "the scanner has the line of the cursor", line);
    } catch (const std::out_of_range&) {
      Require(!IsLine(index), "an existing line can be read");
    }
  }

  template <class Reader>
  void ReadValue(const Reader& read, long index, const std::string& label) {
    try {
      const std::string_view value = read();
      Require(IsLine(index), "there is no value without a line");
      const std::string& line = Line(index);
      const bool hasValue = line.find(label) != line.npos && line.find(':') != line.npos;
      const std::string expected = hasValue ? line.substr(line.find(':') + 1) : "";
      Require(value == expected, "a line with the label has the value after its first colon", value);
    } catch (const std::out_of_range&) {
      Require(!IsLine(index), "an existing line can be read");
    }
  }

  void Find(const std::string& label) {
    const auto found = std::ranges::find_if(lines_, [&](const std::string& line) { return Contains(line, label); });
    const std::string_view line = scanner_.FindLine(label);
    Require(line == (found == lines_.end() ? "" : *found), "the first line with the label is found", line);
    if (found != lines_.end()) cursor_ = found - lines_.begin();
  }

  CollectedData scanner_;
  std::vector<std::string> lines_;
  long cursor_ = 0;
};

// Trims with the simplest possible code.
std::string WithoutLeadingBlanks(std::string text) {
  while (text.size() > 1 && (text[0] == ' ' || text[0] == '\t' || text[0] == '\n')) text.erase(0, 1);
  return text;
}

// Every cut returns a part of its text.
void TryCuts(const std::string& text, const std::string& label, const Section& section) {
  const auto isPart = [&](std::string_view cut) { Require(IsPart(text, cut), "a cut is a part of the text", cut); };
  isPart(GetSectionValue(label, text, section));
  isPart(CollectedData::TrimLeft(text));
  Require(CollectedData::TrimLeft(text) == WithoutLeadingBlanks(text), "leading blanks are dropped", text);
  isPart(CollectedData::TrimRight(text));
  isPart(CollectedData::ValueAfterColon(text));
  isPart(CutDeviceType(text));
  TableRow row(text);
  for (int column = 1; column < 10; ++column) {
    isPart(row.LastColumn());
    isPart(row.NextColumn());
  }
  if (Contains(text, kDeviceNumberLabel)) isPart(CutDeviceName(text));
  if (Contains(text, label)) isPart(CutLogicalDriveNumber(text, label));
  std::string joined = text;
  Join(joined, " ", label);
  Require(joined.size() <= text.size() + 1 + label.size(), "joining adds only a blank", joined);
  LeadingNumber(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Sections input(data, size);
  const std::string steps = input.TextAt(0);
  const std::string text = input.TextAt(1);
  const std::string label = input.TextAt(2);
  Comparison comparison(text);
  for (const char step : steps) comparison.Do(step, label);
  const std::string start = input.TextAt(3);
  const std::string end = input.TextAt(4);
  TryCuts(text, label, {start, end});
  return 0;
}
