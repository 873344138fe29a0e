#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Separates the texts of an input: the ASCII record separator, which no tool prints.
constexpr char kSeparator = '\x1e';

// An input of several texts.
class Sections {
 public:
  Sections(const std::uint8_t* data, std::size_t size);

  std::size_t Count() const { return texts_.size(); }

  // Empty if the input has fewer texts.
  std::optional<std::string> At(std::size_t index) const;

  // "" if the input has fewer texts.
  std::string TextAt(std::size_t index) const { return At(index).value_or(""); }

 private:
  std::vector<std::string> texts_;
};

// The input as one text.
std::string_view AsText(const std::uint8_t* data, std::size_t size);

// The pieces between separators: at least one, which is "" if the text is empty.
std::vector<std::string> Split(std::string_view text, char separator);
