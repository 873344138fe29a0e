#include "host/hxahost/views/json/json_view.h"

#include <cmath>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/result/object_path.h"
#include "host/hxahost/result/unread_lines.h"
#include "host/hxahost/text/ascii.h"
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
  return {
      {"class",      instance.Class().name               },
      {"path",       ObjectPathText(instance.Reference())},
      {"properties", std::move(properties)               }
  };
}

Json EntryJson(const LoggedEntry& entry) {
  return {
      {"level", entry.level       },
      {"text",  AsUtf8(entry.text)}
  };
}

Json RunJson(const ToolRun& run) {
  Json arguments = Json::array();
  for (const std::string& argument : run.arguments) arguments.push_back(AsUtf8(argument));
  Json json = {
      {"command",    AsUtf8(run.path)                               },
      {"arguments",  std::move(arguments)                           },
      {"seconds",    std::round(run.seconds * 1000) / 1000          },
      {"exitStatus", run.exitStatus ? Json(*run.exitStatus) : Json()},
      {"bytes",      run.bytes                                      },
      {"outcome",    OutcomeWord(run.outcome)                       },
      {"failure",    run.failure                                    }
  };
  if (run.isReused) json["reused"] = true;
  return json;
}

Json UnreadTextJson(const UnreadText& text) {
  Json lines = Json::array();
  for (std::size_t index = 0; index < text.unread.size(); ++index) {
    lines.push_back({
        {"number", text.unread[index] + 1         },
        {"text",   AsUtf8(text.unreadLines[index])}
    });
  }
  return {
      {"command", AsUtf8(text.command)},
      {"lines",   std::move(lines)    }
  };
}

// Line feeds within strings are escaped, so each one here ends a line of the layout.
void WriteIndented(std::ostream& out, const Json& json, std::string_view indent) {
  const std::string text = JsonText(json, 2);
  std::string_view lineEnd;
  for (const std::string_view line : Split(text, "\n")) {
    out << lineEnd << indent << line;
    lineEnd = "\n";
  }
}

// Converts one item at a time: the text of all items would take several times the memory of the data.
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
  out << "{\n  \"format\": 1,\n  \"machine\": " << JsonText(AsUtf8(header.machine)) << ",\n";
  out << "  \"time\": \"" << header.time.ToString() << "\",\n";
  if (header.isReplayed) out << "  \"replayed\": true,\n";
  if (header.isMasked) out << "  \"masked\": true,\n";
  out << "  \"queries\": [";
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

void BeginJsonLines(std::ostream&, const QueryHeader&) {}

void WriteQueryJsonLines(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  Json begin = {
      {"machine", AsUtf8(header.machine)},
      {"time",    header.time.ToString()}
  };
  if (header.isReplayed) begin["replayed"] = true;
  if (header.isMasked) begin["masked"] = true;
  const auto write = [&](const Json& rest) {
    Json line = begin;
    line.update(rest);
    out << JsonText(line) << '\n';
  };
  for (const auto& instance : result.instances) write(InstanceJson(*instance));
  if (!header.withRuns) return;
  for (const ToolRun& run : result.runs)
    write({
        {"class",      kRunLine    },
        {"properties", RunJson(run)}
    });
  for (const LoggedEntry& entry : result.log)
    write({
        {"class",      kLogLine        },
        {"properties", EntryJson(entry)}
    });
}

void EndJsonLines(std::ostream&, const QueryHeader&) {}

}  // namespace hxahost
