#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// What the plug-in logs: kept for the query that it belongs to and, where a file is named, written as it comes: the
// level, a tab, the text with its control characters as escapes, so that every entry is one line.
class QueryLog {
 public:
  // An empty path: no file. Throws ProgramError when the file cannot be written.
  explicit QueryLog(const std::filesystem::path& file);

  void Add(int level, const std::string& text);

  // What came since the last time.
  std::vector<LoggedEntry> Take();

  // Throws ProgramError when the file lacks entries.
  void Finish();

 private:
  std::ofstream file_;
  std::string name_;
  std::vector<LoggedEntry> entries_;
};

}  // namespace hxahost
