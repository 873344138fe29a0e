#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "collect/blanks.h"
#include "collect/host_handle.h"
#include "collect/text_search.h"

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
    return {begin_, end_};
  }
  std::string_view NextLine() {
    Advance();
    return CurrentLine();
  }
  // To the next line, which need not be there as long as nobody reads it.
  void Advance() {
    previous_ = begin_;
    begin_ = end_;
    if (outside_ != 0 || end_ == linesEnd_) return AdvanceOutside();
    end_ = Find(begin_, linesEnd_, '\n') + 1;
  }
  void StepBack();

  // All of it, with what follows the last line feed.
  const std::string& WholeText() const { return text_; }

  // Where the last line ends: all that stands before it can be read.
  const char* EndOfLines() const { return linesEnd_; }

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
  static std::string_view TrimLeft(std::string_view text) {
    if (text.empty()) return text;
    const char* const last = text.data() + text.size() - 1;
    return {SkipBlanks(text.data(), last), last + 1};
  }

  // Drops trailing blanks, tabs and line feeds.
  static std::string_view TrimRight(std::string_view text) {
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
  }

  HostHandle Host() const { return host_; }

 private:
  // As ValueAfterColon, of a line of the text, which has its one line feed at its end.
  static std::string_view ValueOfLine(std::string_view line) {
    const char* const colon = Find(line.data(), line.data() + line.size(), ':');
    return colon == nullptr ? std::string_view() : std::string_view(colon + 1, line.data() + line.size());
  }

  // Where the character stands first; null where it does not.
  static const char* Find(const char* begin, const char* end, char character) {
    return std::char_traits<char>::find(begin, static_cast<std::size_t>(end - begin), character);
  }

  // Tools indent the labels of a section alike, so most stand where the one before them did.
  bool IsLabelled(std::string_view line, std::string_view label) {
    const bool hasRoom = labelColumn_ + label.size() <= line.size();
    return (hasRoom && AreSame(line.data() + labelColumn_, label.data(), label.size())) || FindLabel(line, label);
  }
  bool FindLabel(std::string_view line, std::string_view label);

  void AdvanceOutside();
  void JumpTo(const char* position);
  [[noreturn]] static void ThrowNoLine();

  const std::string text_;
  const std::string_view lines_;  // the text up to its last line feed
  const char* const linesEnd_ = lines_.data() + lines_.size();
  const char* begin_ = lines_.data();  // of the current line, and its end; where there is none, both are where lines
  const char* end_ = begin_;           // begin or end
  const char* previous_ = begin_;  // where the line begins that the cursor came from; begin_ where it came by a jump
  int outside_ = -1;               // where there is no line: so many behind the last, or, below 0, before the first
  std::size_t labelColumn_ = 0;    // where the label was that was found last
  HostHandle host_;
};
