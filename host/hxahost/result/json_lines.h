#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "host/hxahost/result/json_result.h"
#include "platform/ordinary_file.h"

// Reads results that "hxahost query --format jsonl" wrote: one instance on each line, with its machine and time.
namespace hxahost {

// The lines of one collection.
struct CollectionLines {
  std::string text;
  std::size_t first = 1;         // the number of the first one, counted from 1
  std::uint64_t largest = 0;     // how many bytes they may have together
  bool isTooLarge = false;       // they have more, which are not in the text
};

// Divides a stream into collections: consecutive lines of the same machine and time are one collection.
class CollectionReader {
 public:
  // Holds at most so many bytes of a collection.
  explicit CollectionReader(std::istream& in, std::uint64_t largest = kLargestInput) : in_(in), largest_(largest) {}

  // Empty after the last one. An incomplete line belongs to the lines before it.
  std::optional<CollectionLines> Next();

 private:
  bool ReadLine();
  void AddTo(CollectionLines& lines) const;

  std::istream& in_;
  std::uint64_t largest_;
  std::string line_;  // that was read and not given
  std::size_t number_ = 0;
};

// The next line without its end, or as much of it as is more than the largest; false after the last.
bool ReadLineUpTo(std::istream& in, std::uint64_t largest, std::string& line);

// Whether it is such a line, not the beginning of another kind of file.
bool IsInstanceLine(std::string_view line);

// Converts the lines of one collection to a result. Throws ProgramError (wrong arguments), which names the file and the
// line, for an invalid line.
JsonResult ParseJsonLines(const CollectionLines& lines, const std::string& name);

}  // namespace hxahost
