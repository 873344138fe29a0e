#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/ordinary_file.h"

namespace hxahost {

// Bytes that are not wanted in memory, in a file that nobody else can open and that is gone with the program, however
// that ends.
class ScratchFile {
 public:
  // Throws std::filesystem::filesystem_error where none can be made in the folder.
  explicit ScratchFile(const std::filesystem::path& folder);

  // Where bytes are.
  struct Piece {
    std::fpos_t begin = {};
    std::size_t size = 0;
  };

  Piece Append(std::string_view bytes);

  // Throws std::runtime_error where not all that was appended could be written, or it cannot be read.
  std::string Read(const Piece& piece) const;

 private:
  UniqueStream stream_;
  bool isWhole_ = true;
};

// The system's part; null where it cannot be made.
UniqueStream OpenScratchFile(const std::filesystem::path& folder);

}  // namespace hxahost
