#pragma once

#include <span>
#include <string>
#include <string_view>
#include <unordered_set>

// What the tools printed, to tell it from what they did not.
class Printed {
 public:
  explicit Printed(std::string text) : text_(std::move(text)) {}
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;

  // Ends the program unless each word of the value, up to a blank, is in what was printed, or is one of the words
  // that the plug-in itself writes.
  void RequireWords(std::string_view name, std::string_view value, std::span<const std::string_view> ownWords);

  // The same for each byte; the plug-in itself writes printable ASCII alone.
  void RequireBytes(std::string_view name, std::string_view value) const;

 private:
  const std::string text_;
  std::unordered_set<std::string_view> known_;  // parts of the text
};
