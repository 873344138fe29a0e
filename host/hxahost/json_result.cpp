#include "host/hxahost/json_result.h"

#include <fstream>
#include <string_view>

#include "host/hxahost/exit_status.h"
#include "host/hxahost/text.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

class NoResult : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

const Json& Member(const Json& object, const char* name, Json::value_t type) {
  if (!object.is_object()) throw NoResult("an object is missing");
  const auto member = object.find(name);
  if (member == object.end() || member->type() != type) throw NoResult("\"" + std::string(name) + "\" is missing");
  return *member;
}

ResultInstance ReadInstance(const Json& json) {
  return {Member(json, "class", Json::value_t::string), Member(json, "path", Json::value_t::string),
          Member(json, "properties", Json::value_t::object)};
}

JsonResult ReadResult(const Json& json) {
  if (json.is_discarded()) throw NoResult("it is damaged, or no JSON at all");
  const Json& format = Member(json, "format", Json::value_t::number_unsigned);
  if (format != 1) throw NoResult("its format is " + format.dump() + ", not 1");
  const Json& queries = Member(json, "queries", Json::value_t::array);
  if (queries.empty()) throw NoResult("it has no query");
  JsonResult result;
  result.machine = Member(json, "machine", Json::value_t::string);
  for (const Json& instance : Member(queries.back(), "instances", Json::value_t::array)) {
    result.instances.push_back(ReadInstance(instance));
  }
  return result;
}

[[noreturn]] void Reject(const std::filesystem::path& file, const std::string& why) {
  throw ProgramError(ExitStatus::kWrongArguments, Printable(Utf8FromPath(file)) + " " + why);
}

}  // namespace

JsonResult ReadJsonResult(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file)) Reject(file, "cannot be read: name a file that is there.");
  try {
    return ReadResult(Json::parse(stream, nullptr, false));
  } catch (const NoResult& reason) {
    Reject(file, "is no result of \"hxahost query --format json\": " + Printable(reason.what()) + ".");
  }
}

std::string ResultText(const ResultInstance& instance, const std::string& property) {
  const auto value = instance.properties.find(property);
  if (value == instance.properties.end()) return "";
  return value->is_string() ? value->get<std::string>() : value->dump();
}

}  // namespace hxahost
