#pragma once

#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string>

#include "host/hxahost/system/unfinished_file.h"

namespace hxahost {

// Throws ProgramError: the file of an option cannot be written, with the reason in the system's words, "" if it is
// unknown.
[[noreturn]] void RejectOutput(const std::string& option, const std::filesystem::path& path, const std::string& reason);

// A file that is complete or does not exist: it is written beside the file that it replaces at the end, whose owner and
// rights it gets, and is deleted if the program ends before. A link stays: the file that it leads to is written. On
// file systems that give unfinished files a name, files that killed programs left are removed. A device, a pipe or
// another special file is written directly.
class OutputFile {
 public:
  // Opens it. Throws ProgramError, which names the option, if it cannot be written there.
  explicit OutputFile(const std::filesystem::path& path, std::string option = "--output");
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  std::ostream& Stream() { return stream_; }

  // Renames it to its final name. Throws ProgramError if it could not be written completely.
  void Finish();

 private:
  std::string option_;
  std::filesystem::path path_;
  std::filebuf device_;
  std::optional<UnfinishedFile> file_;
  std::ostream stream_;
};

}  // namespace hxahost
