#include "host/hxahost/system/unfinished_file.h"

#include <array>
#include <system_error>
#include <utility>

#include <windows.h>

#include "host/hxahost/system/file_rights.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

// A file that Windows deletes with its handle, unless that is revoked.
class FileBuffer : public std::streambuf {
 public:
  explicit FileBuffer(const fs::path& name)
      : file_(CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL,
                          nullptr)) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    SetDeletion(true);
  }
  ~FileBuffer() override { Close(); }
  FileBuffer(const FileBuffer&) = delete;
  FileBuffer& operator=(const FileBuffer&) = delete;

  bool IsOpen() const { return file_ != INVALID_HANDLE_VALUE; }

  // Returns false if it was not written completely: then it is deleted.
  bool Keep() { return sync() == 0 && SetDeletion(false); }

  void Close() {
    if (IsOpen()) CloseHandle(std::exchange(file_, INVALID_HANDLE_VALUE));
  }

 protected:
  int_type overflow(int_type next) override {
    if (sync() != 0) return traits_type::eof();
    if (!traits_type::eq_int_type(next, traits_type::eof())) sputc(traits_type::to_char_type(next));
    return traits_type::not_eof(next);
  }

  int sync() override {
    const auto size = static_cast<DWORD>(pptr() - pbase());
    DWORD written = 0;
    hasFailed_ = hasFailed_ || !WriteFile(file_, pbase(), size, &written, nullptr) || written != size;
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    return hasFailed_ ? -1 : 0;
  }

 private:
  bool SetDeletion(bool isDeleted) {
    FILE_DISPOSITION_INFO disposition{isDeleted ? BOOLEAN{1} : BOOLEAN{0}};
    return SetFileInformationByHandle(file_, FileDispositionInfo, &disposition, sizeof disposition) != 0;
  }

  HANDLE file_;
  bool hasFailed_ = false;
  std::array<char, std::size_t{64} << 10U> bytes_;
};

}  // namespace

// Nobody else can open it before it is finished, so its rights can be set then.
UnfinishedFile::UnfinishedFile(fs::path name, const fs::path& target) : name_(std::move(name)), target_(target) {
  auto buffer = std::make_unique<FileBuffer>(name_);
  if (buffer->IsOpen()) buffer_ = std::move(buffer);
}

UnfinishedFile::~UnfinishedFile() {
  std::error_code ignored;  // a destructor cannot report it
  if (isNamed_) fs::remove(name_, ignored);
}

bool UnfinishedFile::Finish() {
  auto& buffer = static_cast<FileBuffer&>(*buffer_);
  isNamed_ = buffer.Keep();
  buffer.Close();
  if (!isNamed_) return false;
  CopyRights(target_, name_);
  std::error_code error;
  fs::rename(name_, target_, error);
  isNamed_ = static_cast<bool>(error);
  if (error) failure_ = error.message();
  return !error;
}

}  // namespace hxahost
