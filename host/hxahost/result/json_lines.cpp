#include "host/hxahost/result/json_lines.h"

#include <utility>

#include <fmt/core.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/json_output.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

// Null for an invalid line.
Json Parsed(std::string_view line) {
  try {
    return ParseWithinBounds(line);
  } catch (const NoResult&) {
    return nullptr;
  }
}

// The beginning of a line as the program writes it: it identifies the lines of a collection without parsing each line.
// "" if the line is incomplete.
std::string HeadOf(const Json& json) {
  if (!json.is_object() || !json.contains("machine") || !json.contains("time")) return "";
  return "{\"machine\":" + JsonText(json["machine"]) + ",\"time\":" + JsonText(json["time"]) + ",";
}

}  // namespace

bool CollectionReader::ReadLine() {
  while (ReadLineUpTo(in_, largest_, line_)) {
    ++number_;
    if (!Trim(line_).empty()) return true;
  }
  line_.clear();
  return false;
}

std::optional<CollectionLines> CollectionReader::Next() {
  if (line_.empty() && !ReadLine()) return std::nullopt;
  CollectionLines lines{"", number_, largest_};
  AddTo(lines);
  const Beginning beginning = BeginningOf(lines);
  while (ReadLine()) {
    if (BeginsAnother(beginning)) return lines;
    AddTo(lines);
  }
  return lines;
}

CollectionReader::Beginning CollectionReader::BeginningOf(const CollectionLines& lines) const {
  if (lines.isTooLarge) return {};
  const Json json = Parsed(line_);
  return {HeadOf(json), json.contains("path") ? line_ : ""};
}

// Lines of the log and of runs have no path, and may be repeated.
bool CollectionReader::BeginsAnother(const Beginning& beginning) const {
  if (line_ == beginning.object) return true;
  if (beginning.head.empty() || line_.size() > largest_ || line_.starts_with(beginning.head)) return false;
  const std::string head = HeadOf(Parsed(line_));
  return !head.empty() && head != beginning.head;
}

void CollectionReader::AddTo(CollectionLines& lines) const {
  lines.isTooLarge = lines.isTooLarge || lines.text.size() + line_.size() > largest_;
  lines.text = lines.isTooLarge ? "" : std::move(lines.text) + line_ + "\n";
}

bool ReadLineUpTo(std::istream& in, std::uint64_t largest, std::string& line) {
  using Traits = std::istream::traits_type;
  line.clear();
  int next = in.rdbuf()->sbumpc();
  if (next == Traits::eof()) return false;
  for (; next != Traits::eof() && next != '\n'; next = in.rdbuf()->sbumpc()) {
    if (line.size() <= largest) line += Traits::to_char_type(next);
  }
  return true;
}

bool IsInstanceLine(std::string_view line) {
  if (!Trim(line).ends_with('}')) return false;
  const Json json = Parsed(line);
  return !HeadOf(json).empty() && json.contains("class");
}

JsonResult ParseJsonLines(const CollectionLines& lines, const std::string& name) {
  if (lines.isTooLarge) {
    throw ProgramError(ExitStatus::kWrongArguments,
                       fmt::format("{} line {}: the result that begins there is {}: allow more with --input-limit.",
                                   Printable(name), lines.first, LargerThan(lines.largest)));
  }
  JsonResult result;
  std::size_t number = lines.first;
  for (const std::string_view line : Split(std::string_view(lines.text).substr(0, lines.text.size() - 1), "\n")) {
    try {
      AddJsonLine(result, line);
    } catch (const NoResult& reason) {
      throw ProgramError(ExitStatus::kWrongArguments,
                         fmt::format("{} line {} is no line of \"hxahost query --format jsonl\": {}.", Printable(name),
                                     number, Printable(reason.what())));
    }
    ++number;
  }
  return result;
}

}  // namespace hxahost
