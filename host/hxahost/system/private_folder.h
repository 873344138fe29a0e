#pragma once

#include <filesystem>

namespace hxahost {

// An empty folder for this program's own files, which other users cannot read. The destructor deletes it with its
// contents.
class PrivateFolder {
 public:
  // Throws std::filesystem::filesystem_error if it cannot be created.
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace hxahost
