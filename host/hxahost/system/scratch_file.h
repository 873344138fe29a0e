#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/ordinary_file.h"

namespace hxahost {

// A temporary file for bytes that would take too much memory. No other user can open it, and the system removes it when
// the program ends, also if it is killed.
class ScratchFile {
 public:
  // Throws ProgramError if the file cannot be created in the folder.
  explicit ScratchFile(std::filesystem::path folder);

  // The place of bytes in the file.
  struct Piece {
    std::fpos_t begin = {};
    std::size_t size = 0;
  };

  Piece Append(std::string_view bytes);

  // Throws ProgramError if an earlier Append failed or the file cannot be read.
  std::string Read(const Piece& piece) const;

 private:
  std::filesystem::path folder_;
  UniqueStream stream_;
  int error_ = 0;  // of the first Append that failed
};

// The system's part; null if the file cannot be created.
UniqueStream OpenScratchFile(const std::filesystem::path& folder);

}  // namespace hxahost
