#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The log of the plug-in: kept for its query and, if a file is named, written at once as one line for each entry: the
// level, a tab, the text with its control characters escaped.
class QueryLog {
 public:
  // An empty path: no file. Throws ProgramError if the file cannot be written.
  explicit QueryLog(const std::filesystem::path& file);

  void Add(int level, const std::string& text);

  // The entries since the last call; the last of 100 equal ones in a row counts those after it.
  std::vector<LoggedEntry> Take();

  // Throws ProgramError if the file lacks entries.
  void Finish();

 private:
  std::ofstream file_;
  std::string name_;
  std::vector<LoggedEntry> entries_;
  std::size_t inARow_ = 0;  // equal entries at the end
};

}  // namespace hxahost
