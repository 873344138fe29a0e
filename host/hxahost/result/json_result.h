#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/result/query_result.h"

// Reads results that "hxahost query --format json" wrote.
namespace hxahost {

// One published instance. Texts are UTF-8, as in the file.
struct ResultInstance {
  std::string className;
  std::string path;
  nlohmann::ordered_json properties;  // an object
};

struct JsonResult {
  std::string machine;
  std::vector<ResultInstance> instances;  // of the last query
  std::vector<LoggedEntry> log = {};      // of all queries
  std::optional<ToolRunList> runs = {};   // of all queries; empty if the result was written without them
  std::string time = {};                  // of the collection, in the CIM form; "" if the result contains none
  bool isReplayed = false;
  bool isMasked = false;
};

// The "class" of JSON lines that are not instances.
inline constexpr std::string_view kRunLine = "tool run";
inline constexpr std::string_view kLogLine = "log";

// Throws ProgramError (wrong arguments) if the file cannot be read or is not such a result.
JsonResult ReadJsonResult(const std::filesystem::path& file);

// The same from the text; messages contain the name.
JsonResult ParseJsonResult(std::string_view text, const std::string& name);

// Why a text is not a result. Messages begin with the name of the text.
class NoResult : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Parses JSON of unknown origin. Throws NoResult if it is damaged, or so deep or large that processing it would be a
// risk.
nlohmann::ordered_json ParseWithinBounds(std::string_view text);

// Adds one line of "hxahost query --format jsonl". Throws NoResult for an invalid line.
void AddJsonLine(JsonResult& result, std::string_view line);

// The property as text; "" if it is missing.
std::string ResultText(const ResultInstance& instance, const std::string& property);

}  // namespace hxahost
