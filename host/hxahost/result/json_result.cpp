#include "host/hxahost/result/json_result.h"

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/input_file.h"
#include "host/hxahost/system/machine_name.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "platform/ordinary_file.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

// A result is nested seven deep. Functions that process a value call themselves for each level, and the stack is
// finite.
constexpr std::size_t kDeepest = 32;

const Json& Member(const Json& object, const char* name) {
  if (!object.is_object()) throw NoResult("an object is missing");
  const auto member = object.find(name);
  if (member == object.end()) throw NoResult(fmt::format("\"{}\" is missing", name));
  return *member;
}

const Json& Member(const Json& object, const char* name, Json::value_t type) {
  const Json& member = Member(object, name);
  if (member.type() != type) throw NoResult(fmt::format("\"{}\" is missing", name));
  return member;
}

// An object compares a new key with all before it. No class has nearly as many properties.
constexpr std::size_t kMostKeys = 1000;

// Checks a text before its values are made.
class Bounds : public nlohmann::json_sax<Json> {
 public:
  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(std::int64_t) override { return true; }
  bool number_unsigned(std::uint64_t) override { return true; }
  bool number_float(double, const std::string&) override { return true; }
  bool string(std::string&) override { return true; }
  bool binary(Json::binary_t&) override { return true; }
  bool start_object(std::size_t) override { return Open(); }
  bool end_object() override { return Close(); }
  bool start_array(std::size_t) override { return Open(); }
  bool end_array() override { return Close(); }
  bool key(std::string&) override {
    if (++keys_.back() > kMostKeys) throw NoResult("an object has more than 1000 keys");
    return true;
  }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override { return false; }

 private:
  bool Open() {
    if (keys_.size() == kDeepest) throw NoResult("it is nested too deep");
    keys_.push_back(0);
    return true;
  }

  bool Close() {
    keys_.pop_back();
    return true;
  }

  std::vector<std::size_t> keys_;  // of the objects and lists that are open
};

ResultInstance ReadInstance(const Json& json) {
  return {Member(json, "class", Json::value_t::string), Member(json, "path", Json::value_t::string),
          Member(json, "properties", Json::value_t::object)};
}

LoggedEntry ReadEntry(const Json& json) {
  if (!Member(json, "level").is_number_integer()) throw NoResult("\"level\" is missing");
  return {json["level"].get<int>(), Member(json, "text", Json::value_t::string)};
}

ToolRun ReadJsonRun(const Json& json) {
  ToolRun run;
  run.path = Member(json, "command", Json::value_t::string);
  for (const Json& argument : Member(json, "arguments", Json::value_t::array)) {
    if (!argument.is_string()) throw NoResult("an argument is no text");
    run.arguments.push_back(argument);
  }
  const std::string outcome = Member(json, "outcome", Json::value_t::string);
  const auto read = OutcomeOfWord(outcome);
  if (!read) throw NoResult(fmt::format("the outcome \"{}\" is not known", outcome));
  run.outcome = *read;
  run.failure = Member(json, "failure", Json::value_t::string);
  run.isReused = json.contains("reused");
  return run;
}

// Reads a list of a query, which may be missing. Returns whether it exists.
template <class Items, class Read>
bool AddItems(Items& items, const Json& query, const char* name, Read read) {
  if (!query.is_object() || !query.contains(name)) return false;
  for (const Json& json : Member(query, name, Json::value_t::array)) items.push_back(read(json));
  return true;
}

std::string ReadMachineName(const Json& json) {
  std::string name = Member(json, "machine", Json::value_t::string);
  if (name.size() > kLongestMachineName) {
    throw NoResult(fmt::format("the machine's name has more than {} bytes", kLongestMachineName));
  }
  return name;
}

JsonResult ReadWholeResult(const Json& json) {
  const Json& format = Member(json, "format", Json::value_t::number_unsigned);
  if (format != 1) throw NoResult(fmt::format("its format is {}, not 1", format.dump()));
  const Json& queries = Member(json, "queries", Json::value_t::array);
  if (queries.empty()) throw NoResult("it has no query");
  JsonResult result;
  result.machine = ReadMachineName(json);
  if (json.contains("time")) result.time = Member(json, "time", Json::value_t::string);
  result.isReplayed = json.contains("replayed");
  result.isMasked = json.contains("masked");
  for (const Json& instance : Member(queries.back(), "instances", Json::value_t::array)) {
    result.instances.push_back(ReadInstance(instance));
  }
  ToolRunList runs;
  bool haveRuns = true;
  for (const Json& query : queries) {
    AddItems(result.log, query, "log", ReadEntry);
    haveRuns = AddItems(runs, query, "runs", ReadJsonRun) && haveRuns;
  }
  if (haveRuns) result.runs = std::move(runs);
  return result;
}

[[noreturn]] void RejectFile(const std::string& name, const std::string& why) {
  throw ProgramError(ExitStatus::kWrongArguments, Printable(name) + " " + why);
}

}  // namespace

// Twice, as the parser that calls back while it makes values looks through a whole list for each object in it.
Json ParseWithinBounds(std::string_view text) {
  if (text.find('\0') != text.npos) throw NoResult("it contains a NUL");  // where the parser would end
  Bounds bounds;
  if (!Json::sax_parse(text, &bounds)) throw NoResult("it is damaged, or no JSON at all");
  return Json::parse(text);
}

JsonResult ReadJsonResult(const std::filesystem::path& file) {
  return ParseJsonResult(ReadInputFile(file, "a file", kLargestInput), Utf8FromPath(file));
}

JsonResult ParseJsonResult(std::string_view text, const std::string& name) {
  try {
    return ReadWholeResult(ParseWithinBounds(text));
  } catch (const NoResult& reason) {
    RejectFile(name, fmt::format("is no result of \"hxahost query --format json\": {}.", Printable(reason.what())));
  }
}

void AddJsonLine(JsonResult& result, std::string_view line) {
  const Json json = ParseWithinBounds(line);
  result.machine = ReadMachineName(json);
  result.time = Member(json, "time", Json::value_t::string);
  result.isReplayed = json.contains("replayed");
  result.isMasked = json.contains("masked");
  const std::string kind = Member(json, "class", Json::value_t::string);
  if (kind == kRunLine) {
    if (!result.runs) result.runs.emplace();
    result.runs->push_back(ReadJsonRun(Member(json, "properties")));
  } else if (kind == kLogLine) {
    result.log.push_back(ReadEntry(Member(json, "properties")));
  } else {
    result.instances.push_back(ReadInstance(json));
  }
}

std::string ResultText(const ResultInstance& instance, const std::string& property) {
  const auto value = instance.properties.find(property);
  if (value == instance.properties.end()) return "";
  return value->is_string() ? value->get<std::string>() : value->dump();
}

}  // namespace hxahost
