#include "host/hxahost/system/scratch_file.h"

#include <cerrno>
#include <system_error>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

[[noreturn]] void ThrowUnusable(const std::filesystem::path& folder, int error) {
  throw ProgramError(ExitStatus::kQueryFailed, "The temporary file of the recording cannot be written in " +
                                                   Printable(Utf8FromPath(folder)) + " (" +
                                                   std::generic_category().message(error) +
                                                   "): record to a file in a folder with room for it.");
}

}  // namespace

ScratchFile::ScratchFile(std::filesystem::path folder) : folder_(std::move(folder)), stream_(OpenScratchFile(folder_)) {
  if (!stream_) ThrowUnusable(folder_, errno);
}

ScratchFile::Piece ScratchFile::Append(std::string_view bytes) {
  Piece piece;
  piece.size = bytes.size();
  const bool isWritten =
      std::fseek(stream_.get(), 0, SEEK_END) == 0 && std::fgetpos(stream_.get(), &piece.begin) == 0 &&
      std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) == bytes.size() && std::fflush(stream_.get()) == 0;
  if (!isWritten && error_ == 0) error_ = errno;
  return piece;
}

std::string ScratchFile::Read(const Piece& piece) const {
  std::string bytes(piece.size, '\0');
  if (error_ != 0) ThrowUnusable(folder_, error_);
  const bool isRead = std::fsetpos(stream_.get(), &piece.begin) == 0 &&
                      std::fread(bytes.data(), 1, bytes.size(), stream_.get()) == bytes.size();
  if (!isRead) ThrowUnusable(folder_, errno);
  return bytes;
}

}  // namespace hxahost
