#include "host/hxahost/system/unfinished_file.h"

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "host/hxahost/system/file_rights.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr mode_t kReadAndWrite = 0666;  // minus the user's mask

// The name under which the system lists an open file.
std::string OpenName(int file) { return "/proc/self/fd/" + std::to_string(file); }

class FileBuffer : public std::filebuf {
 public:
  explicit FileBuffer(int file) : file_(file) {
    if (file >= 0) open(OpenName(file), std::ios::out | std::ios::binary);
  }
  ~FileBuffer() override {
    if (file_ >= 0) ::close(file_);
  }
  int File() const { return file_; }

 private:
  int file_;
};

}  // namespace

UnfinishedFile::UnfinishedFile(fs::path name, const fs::path& target) : name_(std::move(name)), target_(target) {
  // It may be of a killed program with the same number, a link of somebody else, or too long for a name.
  if (unlink(name_.c_str()) != 0 && errno != ENOENT) {
    failure_ = std::generic_category().message(errno);
    return;
  }
  const fs::path folder = name_.has_parent_path() ? name_.parent_path() : fs::path(".");
  int file = open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, kReadAndWrite);
  isNamed_ = file < 0;
  if (isNamed_) file = open(name_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, kReadAndWrite);
  auto buffer = std::make_unique<FileBuffer>(file);
  if (!buffer->is_open()) {
    failure_ = (file < 0 ? "" : "/proc: ") + std::generic_category().message(errno);
    return;
  }
  CopyRights(target_, OpenName(file));
  buffer_ = std::move(buffer);
}

UnfinishedFile::~UnfinishedFile() {
  std::error_code ignored;  // a destructor cannot report it
  if (isNamed_) fs::remove(name_, ignored);
}

bool UnfinishedFile::Finish() {
  auto& buffer = static_cast<FileBuffer&>(*buffer_);
  if (buffer.close() == nullptr) return false;
  std::error_code error;
  if (!isNamed_) {
    isNamed_ = linkat(AT_FDCWD, OpenName(buffer.File()).c_str(), AT_FDCWD, name_.c_str(), AT_SYMLINK_FOLLOW) == 0;
    if (!isNamed_) failure_ = std::generic_category().message(errno);
    if (!isNamed_) return false;
  }
  fs::rename(name_, target_, error);
  isNamed_ = static_cast<bool>(error);
  if (error) failure_ = error.message();
  return !error;
}

}  // namespace hxahost
