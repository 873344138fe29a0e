#include "fuzz/support/sections.h"

std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return size == 0 ? std::string_view() : std::string_view(reinterpret_cast<const char*>(data), size);
}

std::vector<std::string> Split(std::string_view text, char separator) {
  std::vector<std::string> pieces;
  while (true) {
    const std::size_t end = text.find(separator);
    pieces.emplace_back(text.substr(0, end));
    if (end == text.npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

Sections::Sections(const std::uint8_t* data, std::size_t size) : texts_(Split(AsText(data, size), kSeparator)) {}

std::optional<std::string> Sections::At(std::size_t index) const {
  if (index >= texts_.size()) return std::nullopt;
  return texts_[index];
}
