#include "host/hxahost/system/scratch_file.h"

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace hxahost {

ScratchFile::ScratchFile(const std::filesystem::path& folder) : stream_(OpenScratchFile(folder)) {
  if (stream_) return;
  throw std::filesystem::filesystem_error("cannot create a temporary file", folder,
                                          std::error_code(errno, std::generic_category()));
}

ScratchFile::Piece ScratchFile::Append(std::string_view bytes) {
  Piece piece;
  piece.size = bytes.size();
  isWhole_ = isWhole_ && std::fseek(stream_.get(), 0, SEEK_END) == 0 &&
             std::fgetpos(stream_.get(), &piece.begin) == 0 &&
             std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) == bytes.size();
  return piece;
}

std::string ScratchFile::Read(const Piece& piece) const {
  std::string bytes(piece.size, '\0');
  const bool isRead = isWhole_ && std::fflush(stream_.get()) == 0 && std::fsetpos(stream_.get(), &piece.begin) == 0 &&
                      std::fread(bytes.data(), 1, bytes.size(), stream_.get()) == bytes.size();
  if (!isRead) throw std::runtime_error("the temporary file cannot be written or read: is the disk full?");
  return bytes;
}

}  // namespace hxahost
