#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "host/hxahost/result/json_result.h"

// Reads results that "hxahost query --format jsonl" wrote: one instance on each line, with its machine and time.
namespace hxahost {

// The lines of one collection.
struct CollectionLines {
  std::string text;
  std::size_t first = 1;  // the number of the first one, counted from 1
};

// Divides a stream into collections: consecutive lines of the same machine and time are one collection.
class CollectionReader {
 public:
  explicit CollectionReader(std::istream& in) : in_(in) {}

  // Empty after the last one. An incomplete line belongs to the lines before it.
  std::optional<CollectionLines> Next();

 private:
  bool ReadLine();

  std::istream& in_;
  std::string line_;  // that was read and not given
  std::size_t number_ = 0;
};

// Whether it is such a line, not the beginning of another kind of file.
bool IsInstanceLine(std::string_view line);

// Converts the lines of one collection to a result. Throws ProgramError (wrong arguments), which names the file and the
// line, for an invalid line.
JsonResult ParseJsonLines(const CollectionLines& lines, const std::string& name);

}  // namespace hxahost
