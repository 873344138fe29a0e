#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Puts a short piece of a longer text into an empty field; false, and the field is as it was, where it is neither. A
// std::string holds short texts in itself: copying as many characters as fit, a number that the compiler knows, and
// dropping those behind the piece takes half of what a copy of the piece alone does. The text can be read up to its
// end, which is not before that of the piece.
inline bool KeptShort(std::string& field, std::string_view piece, const char* textEnd) {
  constexpr std::size_t kShort = 15;
  if (piece.empty() || piece.size() > kShort || textEnd - piece.data() < std::ptrdiff_t{kShort}) return false;
  if (!field.empty() || field.capacity() < kShort) return false;
  field.append(piece.data(), kShort);
  field.erase(piece.size());
  return true;
}

// Puts any piece of a longer text into a field.
inline void Keep(std::string& field, std::string_view piece, const char* textEnd) {
  if (!KeptShort(field, piece, textEnd)) field = piece;
}
