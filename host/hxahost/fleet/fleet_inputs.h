#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "host/hxahost/result/json_lines.h"
#include "host/hxahost/result/json_result.h"

namespace hxahost {

// What holds one collection.
struct FleetInput {
  std::string name;                      // as messages call it: the file, UTF-8
  std::filesystem::path file;            // a JSON result or a bundle
  std::optional<CollectionLines> lines;  // those of the file that are the collection, where it holds JSON lines
};

// The collections in files and folders, in the order of the names. Of a folder, and those in it, what ends in .json,
// .jsonl or .bundle counts.
class FleetInputs {
 public:
  // Throws ProgramError (wrong arguments) for a path that is not there.
  explicit FleetInputs(const std::vector<std::filesystem::path>& paths);

  // Nothing after the last one.
  std::optional<FleetInput> Next();

  std::size_t FileCount() const { return files_.size(); }

 private:
  std::optional<FleetInput> NextLines();

  std::vector<std::filesystem::path> files_;
  std::size_t next_ = 0;  // place of the next file
  std::ifstream lines_;   // the file before it, while it has lines
  std::optional<CollectionReader> reader_;
};

// The result that the input holds. A bundle is replayed by a process of its own. Throws ProgramError for what holds
// none.
JsonResult ReadFleetInput(const FleetInput& input);

}  // namespace hxahost
