#pragma once

#include <array>
#include <filesystem>
#include <fstream>
#include <ios>
#include <string>

namespace NKVRHXA20 {

// Appends to the text what the file has. False where it cannot be opened, or not be read to its end: a folder, a broken
// disk, what the system tells of a process that ends meanwhile. Iterators over a stream throw at such a place.
inline bool ReadWholeFile(const std::filesystem::path& path, std::string& text) {
  std::ifstream stream(path, std::ios::binary);
  std::array<char, 4096> piece{};
  while (stream) {
    stream.read(piece.data(), piece.size());
    text.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
  }
  return stream.eof() && !stream.bad();
}

}  // namespace NKVRHXA20
