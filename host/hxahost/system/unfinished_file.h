#pragma once

#include <filesystem>
#include <memory>
#include <streambuf>
#include <string>

namespace hxahost {

// A file that is deleted when the program ends in any way, unless it was finished. If the file system cannot do that,
// a killed program leaves it under its own name.
class UnfinishedFile {
 public:
  // Begins it, with the rights of the file that it will replace, if there is one.
  UnfinishedFile(std::filesystem::path name, const std::filesystem::path& target);
  ~UnfinishedFile();
  UnfinishedFile(const UnfinishedFile&) = delete;
  UnfinishedFile& operator=(const UnfinishedFile&) = delete;

  // The buffer to write to; null: it cannot be written in that folder.
  std::streambuf* Buffer() const { return buffer_.get(); }

  // Why there is no buffer, or why it did not replace the target, in the system's words; "" if it reports no reason.
  const std::string& Failure() const { return failure_; }

  // Replaces the target. Returns false if it could not be written completely, or the target cannot be replaced.
  bool Finish();

 private:
  std::filesystem::path name_;
  std::filesystem::path target_;
  std::unique_ptr<std::streambuf> buffer_;
  std::string failure_;
  bool isNamed_ = false;
};

}  // namespace hxahost
