#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

struct CloseStream {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using UniqueStream = std::unique_ptr<std::FILE, CloseStream>;

// A file that is open for reading, or why it is not.
struct OrdinaryFile {
  UniqueStream stream;
  std::string refusal;     // "Permission denied"; of an open file, ""
  bool isMissing = false;  // there is no such file
  bool isTooLarge = false;
};

// Opens a file that holds at most so many bytes and is neither a folder nor a pipe nor a device: those may keep whoever
// reads them waiting, or never end. The mode is that of fopen, "r" or "rb".
OrdinaryFile OpenOrdinaryFile(const std::filesystem::path& path, const char* mode, std::uint64_t largest);

// In bytes, where nobody asks for another limit.
constexpr std::uint64_t kLargestInput = std::uint64_t{256} << 20U;

// "larger than 256 MiB": what is longer than the limit.
std::string LargerThan(std::uint64_t largest);

// Whatever the path names, open for reading.
struct OpenedPath {
  UniqueStream stream;    // none: see the error
  std::error_code error;  // of the system
  bool isOrdinary = false;
  std::uint64_t size = 0;
};

// The system's part. It does not wait, and looks at what it has opened: the path may name something else by then.
OpenedPath OpenPath(const std::filesystem::path& path, const char* mode);
