#include "host/hxahost/diff/diff_view.h"

#include <algorithm>
#include <iterator>

#include <fmt/core.h>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/json_output.h"
#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/monitoring/finding_json.h"
#include "host/hxahost/views/monitoring/finding_line.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kHeadings[] = {
    "Disappeared",      "States that changed", "Appeared", "Other properties that changed", "Log records", "Links",
    "Counts that grew", "Times of collection",
};
static_assert(std::size(kHeadings) == static_cast<std::size_t>(ChangeGroup::kTime) + 1);

std::string QuotedValue(const Json& value) {
  if (value.is_null()) return "(not there)";
  return fmt::format("\"{}\"", EscapeControls(value.is_string() ? value.get<std::string>() : value.dump()));
}

std::string ChangeText(const Change& change) {
  const std::string path = Printable(change.path);
  if (change.kind == ChangeKind::kDisappeared) return "- " + path;
  if (change.kind == ChangeKind::kAppeared) return "+ " + path;
  const std::string moved = change.newPath.empty() ? "" : fmt::format(" (now {})", Printable(change.newPath));
  return fmt::format("! {}{}: {} {} -> {}", path, moved, Printable(change.property), QuotedValue(change.before),
                     QuotedValue(change.after));
}

// The times of collection are always others: how many says enough.
void WriteChanges(std::ostream& out, const ResultDiff& diff) {
  for (auto first = diff.changes.begin(); first != diff.changes.end();) {
    const ChangeGroup group = first->group;
    const auto last =
        std::find_if(first, diff.changes.end(), [group](const Change& each) { return each.group != group; });
    out << '\n' << kHeadings[static_cast<std::size_t>(group)] << ": " << std::distance(first, last) << '\n';
    if (group == ChangeGroup::kTime) return;
    for (; first != last; ++first) out << "  " << ChangeText(*first) << '\n';
  }
}

std::string FindingChangeText(const FindingChange& change) {
  if (!change.before) return "+ " + FindingText(*change.after);
  if (!change.after) return "- " + FindingText(*change.before);
  return fmt::format("! {} -> {} (was {})", SeverityWord(change.before->severity), FindingText(*change.after),
                     QuotedText(*change.before));
}

void WriteFindingChanges(std::ostream& out, const ResultDiff& diff) {
  if (diff.findings.empty()) return;
  out << "\nHealth findings: " << diff.findings.size() << '\n';
  for (const FindingChange& change : diff.findings) out << "  " << FindingChangeText(change) << '\n';
}

void WriteRawTexts(std::ostream& out, const ResultDiff& diff) {
  if (diff.rawTexts.empty()) return;
  out << "\nRaw texts of commands: " << diff.rawTexts.size() << '\n';
  for (const RawTextChange& change : diff.rawTexts) {
    constexpr char kMarks[] = {'-', '+', '!'};
    out << fmt::format("  {} {}: lines gone {}, new {}\n", kMarks[static_cast<std::size_t>(change.kind)],
                       Printable(change.command), change.linesGone, change.linesNew);
  }
}

std::string NameText(const ComparedFile& file) {
  return fmt::format("{} ({})", Printable(file.name), Printable(file.machine));
}

}  // namespace

void WriteDiffText(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff) {
  out << "From " << NameText(before) << " to " << NameText(after) << (IsSame(diff) ? ": no difference.\n" : ":\n");
  WriteFindingChanges(out, diff);
  WriteChanges(out, diff);
  WriteRawTexts(out, diff);
}

namespace {

Json FileJson(const ComparedFile& file) {
  return {
      {"file",    AsUtf8(file.name)},
      {"machine", file.machine     }
  };
}

Json ChangeJson(const Change& change) {
  Json json = Json::object();
  json["group"] = GroupWord(change.group);
  json["kind"] = KindWord(change.kind);
  json["class"] = change.className;
  json["path"] = change.path;
  if (!change.newPath.empty()) json["newPath"] = change.newPath;
  if (change.kind != ChangeKind::kChanged) return json;
  json["property"] = change.property;
  json["old"] = change.before;
  json["new"] = change.after;
  return json;
}

Json RawTextJson(const RawTextChange& change) {
  const std::string_view kind = KindWord(change.kind);
  return {
      {"command",   change.command  },
      {"kind",      kind            },
      {"linesGone", change.linesGone},
      {"linesNew",  change.linesNew }
  };
}

Json FindingChangeJson(const FindingChange& change) {
  const ChangeKind kind = !change.before  ? ChangeKind::kAppeared
                          : !change.after ? ChangeKind::kDisappeared
                                          : ChangeKind::kChanged;
  const Json before = change.before ? FindingJson(*change.before) : Json();
  const Json after = change.after ? FindingJson(*change.after) : Json();
  return {
      {"kind", KindWord(kind)},
      {"old",  before        },
      {"new",  after         }
  };
}

template <class Each>
Json ListJson(const std::vector<Each>& list, Json (*toJson)(const Each&)) {
  Json json = Json::array();
  for (const Each& each : list) json.push_back(toJson(each));
  return json;
}

}  // namespace

void WriteDiffJson(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff) {
  Json json = {
      {"format", 1               },
      {"old",    FileJson(before)},
      {"new",    FileJson(after) },
      {"same",   IsSame(diff)    }
  };
  json["findings"] = ListJson(diff.findings, FindingChangeJson);
  json["changes"] = ListJson(diff.changes, ChangeJson);
  json["rawTexts"] = ListJson(diff.rawTexts, RawTextJson);
  out << JsonText(json, 2) << '\n';
}

}  // namespace hxahost
