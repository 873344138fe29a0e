#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace hxahost {

// A file that others of this process can open to read it. It is gone with this, and with the process at the latest,
// however that ends.
class PrivateFile {
 public:
  // Throws ProgramError where it cannot be made.
  explicit PrivateFile(std::string_view bytes);
  ~PrivateFile();
  PrivateFile(const PrivateFile&) = delete;
  PrivateFile& operator=(const PrivateFile&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::intptr_t handle_ = -1;  // of the system
  std::filesystem::path path_;
};

}  // namespace hxahost
