#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/result/query_result.h"

// Results that "hxahost query --format json" wrote earlier.
namespace hxahost {

// One published instance. Texts are UTF-8, as the file holds them.
struct ResultInstance {
  std::string className;
  std::string path;
  nlohmann::ordered_json properties;  // an object
};

struct JsonResult {
  std::string machine;
  std::vector<ResultInstance> instances;  // of the last query
  std::vector<LoggedEntry> log = {};      // of all queries
  std::optional<ToolRunList> runs = {};   // of all queries; nothing where the result was written without them
  std::string time = {};                  // when it was collected, in the CIM form; "" where the result does not say
  bool isReplayed = false;
  bool isMasked = false;
};

// What JSON lines have as "class" of what is no instance.
inline constexpr std::string_view kRunLine = "tool run";
inline constexpr std::string_view kLogLine = "log";

// Throws ProgramError (wrong arguments) for a file that cannot be read and for one that is no such result.
JsonResult ReadJsonResult(const std::filesystem::path& file);

// The same from the text itself, which messages call by the name.
JsonResult ParseJsonResult(std::string_view text, const std::string& name);

// Why a text is no result; the text that was read goes before it.
class NoResult : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Adds what one line of "hxahost query --format jsonl" holds. Throws NoResult for a line that is none.
void AddJsonLine(JsonResult& result, std::string_view line);

// The property as text; "" where it is not there.
std::string ResultText(const ResultInstance& instance, const std::string& property);

}  // namespace hxahost
