#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>

#include "host/hxahost/result/json_result.h"

// Results that "hxahost query --format jsonl" wrote earlier: one instance a line, each with its machine and time.
namespace hxahost {

// The lines of one collection.
struct CollectionLines {
  std::string text;
  std::size_t first = 1;  // the number of the first one, counted from 1
};

// Takes the lines of a stream apart: those of one machine and time that follow each other are one collection.
class CollectionReader {
 public:
  explicit CollectionReader(std::istream& in) : in_(in) {}

  // Nothing after the last one. A line that is not whole goes with those before it.
  std::optional<CollectionLines> Next();

 private:
  bool ReadLine();

  std::istream& in_;
  std::string line_;  // that was read and not given
  std::size_t number_ = 0;
};

// Whether it is such a line, not the beginning of another kind of file.
bool IsInstanceLine(std::string_view line);

// The result that the lines of one collection are. Throws ProgramError (wrong arguments), which names the file and the
// line, for what is none.
JsonResult ParseJsonLines(const CollectionLines& lines, const std::string& name);

}  // namespace hxahost
