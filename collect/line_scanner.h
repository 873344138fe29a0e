#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "collect/host_handle.h"

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

  std::string_view CurrentLine() const;

  // Moves to the next line and reads it.
  std::string_view NextLine();

  void StepBack() { --cursor_; }

  // All of it, with what follows the last line feed.
  const std::string& WholeText() const { return text_; }

  std::string_view ValueOfCurrentLine() const;

  // What follows the first colon, up to and with the line feed: leading blanks, carriage return and line feed stay.
  // No colon, or no line feed after it: "".
  static std::string_view ValueAfterColon(std::string_view line);

  // Moves to the next line; its value if it contains the label, else "".
  std::string_view NextLineValueIf(std::string_view label);

  // Drops leading blanks, tabs and line feeds, but never the last character.
  static std::string_view TrimLeft(std::string_view text);

  // Drops trailing blanks, tabs and line feeds.
  static std::string_view TrimRight(std::string_view text);

  HostHandle Host() const { return host_; }

 private:
  const std::string text_;
  std::vector<std::string_view> lines_;
  std::ptrdiff_t cursor_ = 0;  // may be outside the lines, as long as nobody reads there
  HostHandle host_;
};
