#include "host/hxahost/diff/diff_view.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/schema/class_names.h"
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

// The name of an object, and its name now.
std::string SubjectOf(const Change& change, bool isVerbose) {
  const bool hasName = !isVerbose && !change.named.name.empty();
  const std::string subject = hasName ? change.named.name : Printable(change.path);
  const std::string now = hasName ? change.newName : Printable(change.newPath);
  return now.empty() || now == subject ? subject : fmt::format("{} (now {})", subject, now);
}

std::string ChangeText(const Change& change, bool isVerbose) {
  const std::string subject = SubjectOf(change, isVerbose);
  const std::string& serial = change.named.serialNumber;
  const std::string identity = isVerbose || serial.empty() ? "" : ", S/N " + serial;
  if (change.kind == ChangeKind::kDisappeared) return "- " + subject + identity;
  if (change.kind == ChangeKind::kAppeared) return "+ " + subject + identity;
  return fmt::format("! {}: {} {} -> {}", subject, Printable(change.property), QuotedValue(change.before),
                     QuotedValue(change.after));
}

std::string SerialText(const Json& value) { return value.is_string() ? Printable(value.get<std::string>()) : ""; }

using Changes = std::vector<const Change*>;

// Times of collection always differ, so only their number is written.
void WriteChanges(std::ostream& out, const Changes& changes, bool isVerbose) {
  for (auto first = changes.begin(); first != changes.end();) {
    const ChangeGroup group = (*first)->group;
    const auto last = std::find_if(first, changes.end(), [group](const Change* each) { return each->group != group; });
    out << '\n' << kHeadings[static_cast<std::size_t>(group)] << ": " << std::distance(first, last) << '\n';
    if (group == ChangeGroup::kTime) return;
    for (; first != last; ++first) out << "  " << ChangeText(**first, isVerbose) << '\n';
  }
}

// Removes the changes that a replaced disk causes, and returns a line for each disk. One utility identifies disks by
// their place, so another disk there changes its properties; disks of the others disappear and appear.
std::vector<std::string> TakeReplacedDisks(Changes& changes) {
  std::vector<std::string> lines;
  std::set<const Change*> taken;
  const auto replaced = [&lines](const Change& change, const std::string& before, const std::string& after) {
    lines.push_back(fmt::format("{}: disk replaced, {} -> {}", SubjectOf(change, false), before, after));
  };
  std::map<std::string, const Change*> gone;
  std::set<std::string> places;  // of disks that are identified by their place
  for (const Change* const change : changes) {
    if (change->className != kDiskDriveClass || change->named.name.empty()) continue;
    const std::string& serial = change->named.serialNumber;
    if (change->kind == ChangeKind::kDisappeared && !serial.empty()) gone[change->named.name] = change;
    const auto before = gone.find(change->named.name);
    if (change->kind == ChangeKind::kAppeared && !serial.empty() && before != gone.end()) {
      replaced(*change, before->second->named.serialNumber, serial);
      taken.insert({change, before->second});
      gone.erase(before);
    }
    if (change->property != "DeviceSerialNum") continue;
    const std::string old = SerialText(change->before);
    const std::string now = SerialText(change->after);
    if (old.empty() || now.empty()) continue;  // it was not read on one side
    replaced(*change, old, now);
    places.insert(change->named.name);
  }
  std::erase_if(changes, [&](const Change* change) {
    return taken.contains(change) || (change->className == kDiskDriveClass && change->group == ChangeGroup::kProperty &&
                                      places.contains(change->named.name));
  });
  return lines;
}

// Whether the change only follows from other changes.
bool IsDetail(const Change& change) {
  return change.group == ChangeGroup::kLink || change.className == kDiskVersionClass;
}

void WriteSummary(std::ostream& out, const ResultDiff& diff) {
  Changes changes;
  std::size_t details = 0;
  for (const Change& change : diff.changes) {
    details += IsDetail(change) ? 1 : 0;
    if (!IsDetail(change)) changes.push_back(&change);
  }
  const std::vector<std::string> replaced = TakeReplacedDisks(changes);
  if (!replaced.empty()) out << "\nDisks replaced: " << replaced.size() << '\n';
  for (const std::string& line : replaced) out << "  " << line << '\n';
  WriteChanges(out, changes, false);
  if (details + diff.rawTexts.size() == 0) return;
  out << fmt::format("\nLinks and versions of disks: {}, raw texts of commands: {}; --verbose lists them\n", details,
                     diff.rawTexts.size());
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

void WriteDiffText(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff,
                   bool isVerbose) {
  out << "From " << NameText(before) << " to " << NameText(after) << (IsSame(diff) ? ": no difference.\n" : ":\n");
  WriteFindingChanges(out, diff);
  if (!isVerbose) return WriteSummary(out, diff);
  Changes all;
  for (const Change& change : diff.changes) all.push_back(&change);
  WriteChanges(out, all, true);
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

void WriteDiffJson(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff,
                   bool) {
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
