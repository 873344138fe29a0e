#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string>

#include "host/hxahost/system/unfinished_file.h"

namespace hxahost {

// Throws ProgramError: the file of an option cannot be written, with the reason in the system's words, "" where it is
// not known.
[[noreturn]] void RejectOutput(const std::string& option, const std::filesystem::path& path, const std::string& reason);

// A file that is there complete or not at all: it is written beside the file that it replaces at the end, whose owner
// and rights it gets, and is gone with the program where that ends before. What programs that were killed have left of
// it, where the file system names unfinished files, is removed. What is no ordinary file (a device, a pipe) is written
// directly.
class OutputFile {
 public:
  // Opens it. Throws ProgramError, which names the option, when it cannot be written there.
  explicit OutputFile(const std::filesystem::path& path, std::string option = "--output");
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  std::ostream& Stream() { return stream_; }

  // Gives it its name. Throws ProgramError when not all of it could be written.
  void Finish();

 private:
  std::string option_;
  std::filesystem::path path_;
  std::filebuf device_;
  std::optional<UnfinishedFile> file_;
  std::ostream stream_;
};

}  // namespace hxahost
