#include "host/hxahost/diff/result_diff.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <map>
#include <optional>
#include <utility>

#include "host/hxahost/diff/result_matching.h"
#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

using Json = nlohmann::ordered_json;

constexpr std::string_view kGroupWords[] = {"disappeared", "state", "appeared", "property",
                                            "log record",  "link",  "counter",  "time"};
static_assert(std::size(kGroupWords) == static_cast<std::size_t>(ChangeGroup::kTime) + 1);

constexpr std::string_view kKindWords[] = {"disappeared", "appeared", "changed"};
static_assert(std::size(kKindWords) == static_cast<std::size_t>(ChangeKind::kChanged) + 1);

// Properties that show whether an object is in order.
constexpr std::string_view kStateProperties[] = {
    "ControllerStatus",
    "ControllerBatteryStatus",
    "ControllerBatteryOverTemp",
    "DefunctDiskDriveCnt",
    "LogicalDriveStatusCnt",
    "Current_MostRecentOperation",
    "BackgroundOperationActive",
    "LastCmdStatus",
    "LogicalDriveStatus",
    "AccessBlocked",
    "DefunctSegments",
    "WriteCacheStatus",
    "State",
    "PFA",
    "NumBadStripes",
};

constexpr std::string_view kCounters[] = {
    "NumHardErrors", "NumSoftErrors", "NumParityErrors", "Misc", "NumEntries", "ConfigurationUpdateCount",
};

constexpr std::string_view kTimes[] = {"StatisticTime"};

template <std::size_t N>
bool IsAmong(std::string_view name, const std::string_view (&names)[N]) {
  return std::ranges::find(names, name) != std::end(names);
}

std::optional<std::uint64_t> NumberOf(const Json& value) {
  return ReadCount(value.is_string() ? value.get<std::string>() : value.dump());
}

// A count that decreased has been reset, or belongs to another device.
bool HasGrown(const Json& before, const Json& after) {
  const auto from = NumberOf(before);
  const auto to = NumberOf(after);
  return from && to && *to > *from;
}

ChangeGroup PropertyGroup(std::string_view property, const Json& before, const Json& after) {
  if (IsAmong(property, kTimes)) return ChangeGroup::kTime;
  if (IsAmong(property, kStateProperties)) return ChangeGroup::kState;
  return IsAmong(property, kCounters) && HasGrown(before, after) ? ChangeGroup::kCounter : ChangeGroup::kProperty;
}

ChangeGroup ObjectGroup(const ResultInstance& instance, ChangeGroup usual) {
  if (instance.className.starts_with("KVRSG_LogRecord_")) return ChangeGroup::kLogRecord;
  return IsLink(instance) ? ChangeGroup::kLink : usual;
}

Json PropertyOf(const ResultInstance& instance, const std::string& property) {
  const auto value = instance.properties.find(property);
  return value == instance.properties.end() ? Json() : *value;
}

std::vector<std::string> PropertyNames(const ResultInstance& old, const ResultInstance& now) {
  std::vector<std::string> names;
  for (const auto& property : old.properties.items()) names.push_back(property.key());
  for (const auto& property : now.properties.items()) {
    if (!old.properties.contains(property.key())) names.push_back(property.key());
  }
  return names;
}

ObjectName NameIn(const ObjectNames& names, const ResultInstance& instance) {
  const auto named = names.find(&instance);
  return named == names.end() ? ObjectName() : named->second;
}

// The objects of a link are compared themselves; its own two properties change only with the paths.
void AddProperties(std::vector<Change>& changes, const ResultInstance& old, const ResultInstance& now) {
  if (IsLink(old) && IsLink(now)) return;
  for (const std::string& name : PropertyNames(old, now)) {
    Json before = PropertyOf(old, name);
    Json after = PropertyOf(now, name);
    if (before == after) continue;
    const ChangeGroup group = PropertyGroup(name, before, after);
    changes.push_back({group, ChangeKind::kChanged, old.className, old.path, old.path == now.path ? "" : now.path, name,
                       std::move(before), std::move(after)});
  }
}

Change ObjectChange(const ResultInstance& instance, ChangeGroup usual, ChangeKind kind) {
  return {ObjectGroup(instance, usual), kind, instance.className, instance.path, "", "", {}, {}};
}

using Lines = std::map<std::string, std::int64_t>;  // how often each occurs

// Counts the lines of each command's text.
void CountRawLines(std::map<std::string, Lines>& texts, const JsonResult& result, std::int64_t times) {
  for (const ResultInstance& instance : result.instances) {
    if (!IsRawText(instance)) continue;
    Lines& lines = texts[ResultText(instance, "Command")];
    const auto results = instance.properties.find("RawResults");
    if (results == instance.properties.end() || !results->is_array()) continue;
    for (const Json& line : *results) lines[line.is_string() ? line.get<std::string>() : line.dump()] += times;
  }
}

std::vector<std::string> Commands(const JsonResult& result) {
  std::vector<std::string> commands;
  for (const ResultInstance& instance : result.instances) {
    if (IsRawText(instance)) commands.push_back(ResultText(instance, "Command"));
  }
  std::ranges::sort(commands);
  return commands;
}

std::vector<RawTextChange> CompareRawTexts(const JsonResult& before, const JsonResult& after) {
  std::map<std::string, Lines> texts;
  CountRawLines(texts, before, -1);
  CountRawLines(texts, after, 1);
  const auto oldCommands = Commands(before);
  const auto newCommands = Commands(after);
  std::vector<RawTextChange> changes;
  for (const auto& [command, lines] : texts) {
    RawTextChange change{command};
    if (!std::ranges::binary_search(newCommands, command)) change.kind = ChangeKind::kDisappeared;
    if (!std::ranges::binary_search(oldCommands, command)) change.kind = ChangeKind::kAppeared;
    for (const auto& [line, times] : lines) {
      (times < 0 ? change.linesGone : change.linesNew) += static_cast<std::size_t>(std::abs(times));
    }
    const bool isDifferent = change.kind != ChangeKind::kChanged || change.linesGone + change.linesNew > 0;
    if (isDifferent) changes.push_back(std::move(change));
  }
  return changes;
}

}  // namespace

std::string_view GroupWord(ChangeGroup group) { return kGroupWords[static_cast<std::size_t>(group)]; }
std::string_view KindWord(ChangeKind kind) { return kKindWords[static_cast<std::size_t>(kind)]; }

ResultDiff CompareResults(const JsonResult& before, const JsonResult& after) {
  const MatchedInstances matched = MatchInstances(before, after);
  const ObjectNames oldNames = NameObjects(before);
  const ObjectNames newNames = NameObjects(after);
  ResultDiff diff;
  for (const ResultInstance* const instance : matched.onlyOld) {
    diff.changes.push_back(ObjectChange(*instance, ChangeGroup::kDisappeared, ChangeKind::kDisappeared));
    diff.changes.back().named = NameIn(oldNames, *instance);
  }
  for (const auto& [old, now] : matched.pairs) {
    const std::size_t known = diff.changes.size();
    AddProperties(diff.changes, *old, *now);
    for (std::size_t place = known; place < diff.changes.size(); ++place) {
      diff.changes[place].named = NameIn(oldNames, *old);
      diff.changes[place].newName = NameIn(newNames, *now).name;
    }
  }
  for (const ResultInstance* const instance : matched.onlyNew) {
    diff.changes.push_back(ObjectChange(*instance, ChangeGroup::kAppeared, ChangeKind::kAppeared));
    diff.changes.back().named = NameIn(newNames, *instance);
  }
  std::ranges::stable_sort(diff.changes, {}, &Change::group);
  diff.rawTexts = CompareRawTexts(before, after);
  diff.findings = CompareFindings(before, after, matched);
  return diff;
}

bool IsSame(const ResultDiff& diff) {
  return diff.rawTexts.empty() && diff.findings.empty() &&
         std::ranges::all_of(diff.changes, [](const Change& change) { return change.group == ChangeGroup::kTime; });
}

}  // namespace hxahost
