#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "collect/host_handle.h"

// Whether the text contains the label, in exact case.
inline bool Contains(std::string_view text, std::string_view label) { return text.find(label) != text.npos; }

// Reads one tool output line by line. Every line keeps its line feed; what follows the last one is dropped.
// A view that an operation returns lives as long as the scanner. Reading where there is no line throws
// std::out_of_range.
class CollectedData {
 public:
  CollectedData(HostHandle host, std::string text);
  virtual ~CollectedData() = default;
  CollectedData(const CollectedData&) = delete;
  CollectedData& operator=(const CollectedData&) = delete;

  // The first line of the whole text that contains the label becomes current. No such line: "", and nothing moves.
  std::string_view FindLine(std::string_view label);

  // The value of the line that FindLine finds.
  std::string_view FindValue(std::string_view label);

  std::string_view CurrentLine() const {
    if (outside_ != 0) ThrowNoLine();
    return {lines_.data() + begin_, end_ - begin_};
  }
  std::string_view NextLine() {
    Advance();
    return CurrentLine();
  }
  void StepBack();

  // All of it, with what follows the last line feed.
  const std::string& WholeText() const { return text_; }

  std::string_view ValueOfCurrentLine() const;

  // What follows the first colon, up to and with the line feed: leading blanks, carriage return and line feed stay.
  // No colon, or no line feed behind it: "".
  static std::string_view ValueAfterColon(std::string_view line);

  // The current line's value if it contains the label, else "".
  std::string_view ValueIf(std::string_view label) {
    const std::string_view line = CurrentLine();
    return IsLabelled(line, label) ? ValueOfLine(line) : std::string_view();
  }

  // Moves to the next line; its value if it contains the label, else "".
  std::string_view NextLineValueIf(std::string_view label) {
    Advance();
    return ValueIf(label);
  }

  // Drops leading blanks, tabs and line feeds, but never the last character.
  static std::string_view TrimLeft(std::string_view text);

  // Drops trailing blanks, tabs and line feeds.
  static std::string_view TrimRight(std::string_view text);

  HostHandle Host() const { return host_; }

 private:
  // As ValueAfterColon, of a line of the text, which has its one line feed at its end.
  static std::string_view ValueOfLine(std::string_view line) {
    const std::size_t colon = line.find(':');
    return colon == line.npos ? std::string_view() : line.substr(colon + 1);
  }

  // Tools indent the labels of a section alike, so most stand where the one before them did.
  bool IsLabelled(std::string_view line, std::string_view label) {
    return line.substr(std::min(labelColumn_, line.size())).starts_with(label) || FindColumn(line, label);
  }
  bool FindColumn(std::string_view line, std::string_view label);

  void Advance() {
    previous_ = begin_;
    begin_ = end_;
    if (outside_ != 0 || end_ == lines_.size()) return AdvanceOutside();
    end_ = lines_.find('\n', begin_) + 1;
  }
  void AdvanceOutside();
  void JumpTo(std::size_t position);
  [[noreturn]] static void ThrowNoLine();

  const std::string text_;
  const std::string_view lines_;  // the text up to its last line feed
  std::size_t begin_ = 0;         // of the current line, and its end; where there is none, both are where the lines end
  std::size_t end_ = 0;
  std::size_t previous_ = 0;     // where the line begins that the cursor came from; begin_ where it came by a jump
  int outside_ = -1;             // where there is no line: so many behind the last, or, below 0, before the first
  std::size_t labelColumn_ = 0;  // where the label was that was found last
  HostHandle host_;
};
