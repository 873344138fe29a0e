#pragma once

#include <filesystem>
#include <memory>
#include <streambuf>
#include <string>

namespace hxahost {

// A file that is gone with the program, however that ends, unless it was finished. Where the file system cannot do
// that, a program that is ended by force leaves it under its own name.
class UnfinishedFile {
 public:
  // Begins it, with the rights of the file that it will replace, if that is there.
  UnfinishedFile(std::filesystem::path name, const std::filesystem::path& target);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  // Where it is written; null: it cannot be written in that folder.
  std::streambuf* Buffer() const { return buffer_.get(); }

  // Why there is no buffer, in the system's words; "" where it does not say.
  const std::string& Failure() const { return failure_; }

  // Puts it in the place of the target. False: not all of it could be written, or the target cannot be replaced.
  bool Finish();

 private:
  std::filesystem::path name_;
  std::filesystem::path target_;
  std::unique_ptr<std::streambuf> buffer_;
  std::string failure_;
  bool isNamed_ = false;
};

}  // namespace hxahost
