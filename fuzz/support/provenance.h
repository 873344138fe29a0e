#pragma once

#include <span>
#include <string>
#include <string_view>
#include <unordered_set>

// The output of the tools, to detect values that are not part of it.
class Printed {
 public:
  explicit Printed(std::string text) : text_(std::move(text)) {}
  Printed(const Printed&) = delete;
  Printed& operator=(const Printed&) = delete;

  // Ends the program unless each word of the value, up to a blank, occurs in the output, or is one of the plug-in's own
  // words.
  void RequireWords(std::string_view name, std::string_view value, std::span<const std::string_view> ownWords);

  // The same for each byte; the plug-in itself writes only printable ASCII.
  void RequireBytes(std::string_view name, std::string_view value) const;

 private:
  const std::string text_;
  std::unordered_set<std::string_view> known_;  // parts of the text
};
