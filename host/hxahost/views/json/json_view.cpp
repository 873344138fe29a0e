#include "host/hxahost/views/json/json_view.h"

#include <cmath>
#include <cstddef>
#include <optional>
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
  return Json::array();
}

// Writes an instance value by value: a log of a million lines would take several times its memory as one JSON value.
class InstanceText {
 public:
  // Each value is on its own line, indented by so many columns; without an indent, all are on one line.
  InstanceText(std::ostream& out, std::optional<std::size_t> indent)
      : out_(out), indent_(indent), colon_(indent ? "\": " : "\":") {}

  // Writes everything except the braces around it.
  void Write(const TPublishedInstance& instance) {
    Name("class", 1);
    out_ << JsonText(instance.Class().name) << ',';
    Name("path", 1);
    out_ << JsonText(ObjectPathText(instance.Reference())) << ',';
    Name("properties", 1);
    out_ << '{';
    std::string_view separator;
    for (const PublishedProperty& property : instance.Properties()) {
      out_ << separator;
      Name(property.name, 2);
      WriteValue(property.value, 2);
      separator = ",";
    }
    if (!separator.empty()) EndLine(1);
    out_ << '}';
  }

  void EndLine(std::size_t depth) {
    constexpr std::size_t kStep = 2;
    if (indent_) out_ << '\n' << std::string(*indent_ + kStep * depth, ' ');
  }

 private:
  void Name(std::string_view name, std::size_t depth) {
    EndLine(depth);
    out_ << '"' << name << colon_;
  }

  void WriteValue(const TCIMValue& value, std::size_t depth) {
    if (TCIMValueReader::Kind(value) != ValueKind::kArray || TCIMValueReader::Elements(value).empty()) {
      out_ << JsonText(ValueJson(value));
      return;
    }
    char separator = '[';
    for (const TCIMValue& element : TCIMValueReader::Elements(value)) {
      out_ << separator;
      EndLine(depth + 1);
      WriteValue(element, depth + 1);
      separator = ',';
    }
    EndLine(depth);
    out_ << ']';
  }

  std::ostream& out_;
  std::optional<std::size_t> indent_;
  std::string_view colon_;
};

Json EntryJson(const LoggedEntry& entry) {
  Json json = {
      {"level", entry.level       },
      {"text",  AsUtf8(entry.text)}
  };
  if (entry.count > 1) json["count"] = entry.count;
  return json;
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

void BeginInstances(std::ostream& out, unsigned query) {
  out << (query == 1 ? "\n    {\n" : ",\n    {\n") << "      \"instances\": [";
}

// The beginning of each line.
Json LineBegin(const QueryHeader& header) {
  Json begin = {
      {"machine", AsUtf8(header.machine)},
      {"time",    header.time.ToString()}
  };
  if (header.isReplayed) begin["replayed"] = true;
  if (header.isMasked) begin["masked"] = true;
  return begin;
}

}  // namespace

void BeginJson(std::ostream& out, const QueryHeader& header) {
  out << "{\n  \"format\": 1,\n  \"machine\": " << JsonText(AsUtf8(header.machine)) << ",\n";
  out << "  \"time\": \"" << header.time.ToString() << "\",\n";
  if (header.isReplayed) out << "  \"replayed\": true,\n";
  if (header.isMasked) out << "  \"masked\": true,\n";
  out << "  \"queries\": [";
}

void WriteInstanceJson(std::ostream& out, const QueryHeader&, const TPublishedInstance& instance,
                       const InstancePlace& place) {
  constexpr std::size_t kIndent = 8;
  if (place.instance == 0) BeginInstances(out, place.query);
  out << (place.instance == 0 ? "\n" : ",\n") << std::string(kIndent, ' ') << '{';
  InstanceText text(out, kIndent);
  text.Write(instance);
  text.EndLine(0);
  out << '}';
}

void WriteQueryJson(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  InstancePlace place{result.number, result.written};
  for (const auto& instance : result.instances) {
    WriteInstanceJson(out, header, *instance, place);
    ++place.instance;
  }
  if (place.instance == 0) BeginInstances(out, place.query);
  out << (place.instance == 0 ? "],\n" : "\n      ],\n");
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

void WriteInstanceJsonLine(std::ostream& out, const QueryHeader& header, const TPublishedInstance& instance,
                           const InstancePlace&) {
  std::string begin = JsonText(LineBegin(header));
  begin.back() = ',';  // instead of its closing brace
  out << begin;
  InstanceText(out, std::nullopt).Write(instance);
  out << "}\n";
}

void WriteQueryJsonLines(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  for (const auto& instance : result.instances) WriteInstanceJsonLine(out, header, *instance, {});
  const Json begin = LineBegin(header);
  const auto write = [&](const Json& rest) {
    Json line = begin;
    line.update(rest);
    out << JsonText(line) << '\n';
  };
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
