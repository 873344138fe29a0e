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
  std::size_t first = 1;      // the number of the first line, counted from 1
  std::uint64_t largest = 0;  // the limit of their size, in bytes
  bool isTooLarge = false;    // they are larger, and the text is empty
};

// Divides a stream into collections: consecutive lines of the same machine and time are one collection. Where its first
// object is repeated, the next one begins, as in a file that was concatenated with itself.
class CollectionReader {
 public:
  // A collection may have at most so many bytes.
  explicit CollectionReader(std::istream& in, std::uint64_t largest = kLargestInput) : in_(in), largest_(largest) {}

  // Empty after the last one. An incomplete line belongs to the lines before it.
  std::optional<CollectionLines> Next();

 private:
  // What the lines of a collection are compared with.
  struct Beginning {
    std::string head;    // of all lines; "" if the first line is incomplete or too long
    std::string object;  // the first line, if it is an object with a path
  };

  bool ReadLine();
  Beginning BeginningOf(const CollectionLines& lines) const;
  bool BeginsAnother(const Beginning& beginning) const;
  void AddTo(CollectionLines& lines) const;

  std::istream& in_;
  std::uint64_t largest_;
  std::string line_;  // read but not yet returned
  std::size_t number_ = 0;
};

// Reads the next line, without its end, and returns false after the last one. A line that is too large is cut one byte
// after the limit.
bool ReadLineUpTo(std::istream& in, std::uint64_t largest, std::string& line);

// Whether the line is such a line and not the beginning of another kind of file.
bool IsInstanceLine(std::string_view line);

// Converts the lines of one collection to a result. Throws ProgramError (wrong arguments), which names the file and the
// line, for an invalid line.
JsonResult ParseJsonLines(const CollectionLines& lines, const std::string& name);

}  // namespace hxahost
