#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/result/json_lines.h"
#include "host/hxahost/result/json_result.h"
#include "platform/ordinary_file.h"

namespace hxahost {

// The source of one collection.
struct FleetInput {
  std::string name;                       // for messages: the file, UTF-8
  std::filesystem::path file;             // a JSON result or a bundle
  std::optional<CollectionLines> lines;   // the lines of the collection, if the file contains JSON lines
  std::uint64_t largest = kLargestInput;  // bytes of the file that are read at most
  std::string failure = {};               // why the file or folder cannot be read; "" if that is not known yet
};

// The collections in files and folders, in the order of the names. In a folder and its subfolders, only files that end
// in .json, .jsonl or .bundle are read; links to folders are not followed. What cannot be listed or read is an input
// with the failure.
class FleetInputs {
 public:
  // Reads at most so many bytes of a file, and of each collection in a file of JSON lines. Throws ProgramError (wrong
  // arguments) for a path that does not exist.
  FleetInputs(const std::vector<std::filesystem::path>& paths, std::uint64_t largest);

  // Empty after the last one.
  std::optional<FleetInput> Next();

  std::size_t FileCount() const { return files_.size(); }

 private:
  bool OpenLines(const std::filesystem::path& file);
  std::optional<FleetInput> NextLines();

  std::uint64_t largest_;
  std::vector<FleetInput> files_;  // without lines
  std::size_t next_ = 0;           // place of the next file
  std::ifstream lines_;            // the file before it, while it has lines
  std::optional<CollectionReader> reader_;
};

// Whether a file of this name, which need not be there, is read with the folder.
bool IsReadFrom(const std::filesystem::path& folder, const std::filesystem::path& file);

// Reads the result of the input. A bundle is replayed by a process of its own. Throws ProgramError if it does not
// contain a result.
JsonResult ReadFleetInput(const FleetInput& input);

}  // namespace hxahost
