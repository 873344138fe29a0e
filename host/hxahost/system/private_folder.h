#pragma once

#include <filesystem>

namespace hxahost {

// An empty folder for this program's own files, which nobody else may look into; it is gone with all in it when this
// is.
class PrivateFolder {
 public:
  // Throws std::filesystem::filesystem_error where none can be made.
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace hxahost
