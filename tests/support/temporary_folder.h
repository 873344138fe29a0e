#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

// An empty folder, which the destructor deletes with its contents.
class TemporaryFolder {
 public:
  TemporaryFolder()
      : path_(std::filesystem::temp_directory_path() / ("zenx-test-" + std::to_string(std::random_device()()))) {
    std::filesystem::create_directories(path_);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

  // Writes a file, byte for byte, and the folders above it. The path is relative to this folder.
  std::filesystem::path Write(const std::filesystem::path& relative, std::string_view bytes) const {
    const std::filesystem::path file = path_ / relative;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
  }

 private:
  std::filesystem::path path_;
};
