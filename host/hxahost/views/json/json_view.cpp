#include "host/hxahost/views/json/json_view.h"

#include <cmath>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/result/unread_lines.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

Json ValueJson(const TCIMValue& value) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kNone: return nullptr;
    case ValueKind::kString: return AsUtf8(TCIMValueReader::Text(value));
    case ValueKind::kUInt16:
    case ValueKind::kUInt32: return TCIMValueReader::Number(value);
    case ValueKind::kDateTime: return TCIMValueReader::DateTime(value);
    case ValueKind::kReference: return ObjectPathText(TCIMValueReader::Reference(value));
    case ValueKind::kArray: break;
  }
  Json elements = Json::array();
  for (const TCIMValue& element : TCIMValueReader::Elements(value)) elements.push_back(ValueJson(element));
  return elements;
}

Json InstanceJson(const TPublishedInstance& instance) {
  Json properties = Json::object();
  for (const PublishedProperty& property : instance.Properties()) {
    properties[std::string(property.name)] = ValueJson(property.value);
  }
  Json json = Json::object();
  json["class"] = instance.Class().name;
  json["path"] = ObjectPathText(instance.Reference());
  json["properties"] = std::move(properties);
  return json;
}

Json EntryJson(const LoggedEntry& entry) {
  Json json = Json::object();
  json["level"] = entry.level;
  json["text"] = AsUtf8(entry.text);
  return json;
}

Json RunJson(const ToolRun& run) {
  Json json = Json::object();
  json["command"] = AsUtf8(run.path);
  json["arguments"] = Json::array();
  for (const std::string& argument : run.arguments) json["arguments"].push_back(AsUtf8(argument));
  json["seconds"] = std::round(run.seconds * 1000) / 1000;
  json["exitStatus"] = run.exitStatus ? Json(*run.exitStatus) : Json();
  json["bytes"] = run.bytes;
  json["outcome"] = OutcomeWord(run.outcome);
  json["failure"] = run.failure;
  return json;
}

Json UnreadTextJson(const UnreadText& text) {
  Json json = Json::object();
  json["command"] = AsUtf8(text.command);
  json["lines"] = Json::array();
  for (std::size_t index = 0; index < text.unread.size(); ++index) {
    Json line = Json::object();
    line["number"] = text.unread[index] + 1;
    line["text"] = AsUtf8(text.unreadLines[index]);
    json["lines"].push_back(std::move(line));
  }
  return json;
}

// Line feeds within strings are escapes, so each one here ends a line of the layout.
void WriteIndented(std::ostream& out, const Json& json, std::string_view indent) {
  const std::string text = JsonText(json, 2);
  std::string_view rest = text;
  while (true) {
    const std::size_t end = rest.find('\n');
    out << indent << rest.substr(0, end);
    if (end == rest.npos) return;
    out << '\n';
    rest.remove_prefix(end + 1);
  }
}

// One item is turned into JSON at a time: the text of all of them would take several times the memory of the data.
template <class Items, class ToJson>
void WriteJsonArray(std::ostream& out, std::string_view name, const Items& items, ToJson toJson) {
  out << "      \"" << name << "\": [";
  std::string_view separator = "\n";
  for (const auto& item : items) {
    out << separator;
    WriteIndented(out, toJson(item), "        ");
    separator = ",\n";
  }
  out << (items.empty() ? "]" : "\n      ]");
}

}  // namespace

void BeginJson(std::ostream& out, const QueryHeader& header) {
  out << "{\n  \"format\": 1,\n  \"machine\": " << JsonText(AsUtf8(header.machine)) << ",\n  \"queries\": [";
}

void WriteQueryJson(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  out << (result.number == 1 ? "\n    {\n" : ",\n    {\n");
  WriteJsonArray(out, "instances", result.instances, [](const auto& instance) { return InstanceJson(*instance); });
  out << ",\n";
  WriteJsonArray(out, "log", result.log, EntryJson);
  if (header.withRuns) {
    out << ",\n";
    WriteJsonArray(out, "runs", result.runs, RunJson);
  }
  if (header.withUnread) {
    out << ",\n";
    WriteJsonArray(out, "unread", FindUnreadLines(result.instances), UnreadTextJson);
  }
  out << "\n    }";
}

void EndJson(std::ostream& out, const QueryHeader&) { out << "\n  ]\n}\n"; }

}  // namespace hxahost
