#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hxahost {

// The path from the root. The standard library for Windows takes a network share for a folder of the current drive, and
// a device for a file; this function does not. Unchanged if the system knows no such path.
std::filesystem::path AbsolutePath(const std::filesystem::path& path);

// Where a path leads: absolute and, on POSIX systems, through all links, also through one to a file that is not there
// yet. A link that the system does not follow stays.
std::filesystem::path PlaceOf(const std::filesystem::path& path);

// Whether what is there is written directly and can be named twice: a device or a pipe.
bool IsDevice(const std::filesystem::path& path);

// Whether two paths lead to one file, which need not be there.
bool LeadToOneFile(const std::filesystem::path& one, const std::filesystem::path& other);

// A file on the command line, as typed: "--output result.json".
struct NamedFile {
  std::string option;  // "" for an argument
  std::filesystem::path path;
};

// Throws ProgramError (wrong arguments) if an output is one of the inputs or of the other outputs, as one of them would
// be lost. Empty paths were not given.
void CheckOutput(const NamedFile& output, const std::vector<NamedFile>& others);

// The system's part: whether a folder has one file for both names.
bool AreOneName(const std::filesystem::path& one, const std::filesystem::path& other);

}  // namespace hxahost
