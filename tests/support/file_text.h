#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

// The bytes of a file; "" if there is no file.
inline std::string FileText(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void WriteFileText(const std::filesystem::path& path, const std::string& text) {
  std::ofstream(path, std::ios::binary) << text;
}
