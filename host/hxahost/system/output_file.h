#pragma once

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>

namespace hxahost {

// A file that is there complete or not at all: it is written under another name in the same folder and renamed at
// the end, with the owner and the rights of the file that it replaces. What programs that were killed have left of it
// is removed. What is no ordinary file (a device, a pipe) is written directly.
class OutputFile {
 public:
  // Opens it. Throws ProgramError, which names the option, when it cannot be written there.
  explicit OutputFile(const std::filesystem::path& path, std::string option = "--output");
  // Removes what was written unless it was finished.
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  std::ostream& Stream() { return stream_; }

  // Gives it its name. Throws ProgramError when not all of it could be written.
  void Finish();

 private:
  std::string option_;
  std::filesystem::path path_;
  std::filesystem::path written_;  // the same as path_ where it is written directly
  std::ofstream stream_;
  bool isFinished_ = false;
};

}  // namespace hxahost
