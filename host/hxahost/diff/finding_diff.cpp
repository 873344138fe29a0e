#include "host/hxahost/diff/finding_diff.h"

#include <algorithm>
#include <compare>
#include <deque>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/hxahost/machine/health.h"
#include "host/hxahost/result/json_instances.h"

namespace hxahost {

namespace {

// The classes of which a result has instances.
void AddClasses(std::vector<std::string>& classes, const JsonResult& result) {
  for (const std::string_view className : HealthClasses()) {
    if (std::ranges::count(result.instances, className, &ResultInstance::className) > 0)
      classes.emplace_back(className);
  }
}

// Finding::instance is the place in the result. A result does not contain the queried classes: a class that one of the
// two has counts as queried in both.
Findings FindingsOf(const JsonResult& result, const std::vector<std::string>& classes, bool withRuns) {
  const JsonInstances made = MakeInstances(result, HealthClasses());
  QueryHeader header;
  header.classes = classes;
  QueryResult query;
  query.number = withRuns ? 1 : 2;  // only the first query reports that no tool was run
  query.instances = made.instances;
  query.log = result.log;
  if (withRuns) query.runs = *result.runs;
  Findings findings = BuildMachine(header, query).findings;
  for (Finding& finding : findings) {
    if (finding.instance) finding.instance = made.places[*finding.instance];
  }
  return findings;
}

// Findings of two results are the same if these agree: the object and the property; without an object, the fault that
// is reported.
struct FindingIdentity {
  const ResultInstance* instance = nullptr;  // of the old result, if both have it
  std::string subject;
  std::string property;
  std::string text;
  auto operator<=>(const FindingIdentity&) const = default;
};

using Partners = std::unordered_map<const ResultInstance*, const ResultInstance*>;

FindingIdentity IdentityOf(const Finding& finding, const JsonResult& result, const Partners& oldOfNew) {
  if (!finding.instance) {
    const bool isFromRunOrLog = finding.className == kToolRun || finding.className == kLog;
    return {nullptr, finding.className + " " + finding.identifier, finding.property,
            isFromRunOrLog ? finding.text : ""};
  }
  const ResultInstance* const instance = &result.instances[*finding.instance];
  const auto old = oldOfNew.find(instance);
  return {old == oldOfNew.end() ? instance : old->second, "", finding.property, ""};
}

bool IsSameFinding(const Finding& left, const Finding& right) {
  return left.severity == right.severity && left.text == right.text && left.meaning == right.meaning;
}

// New and changed findings come before those that are gone.
bool IsBefore(const FindingChange& left, const FindingChange& right) {
  if (left.after.has_value() != right.after.has_value()) return left.after.has_value();
  return left.after ? IsWorse(left.after->severity, right.after->severity)
                    : IsWorse(left.before->severity, right.before->severity);
}

}  // namespace

std::vector<FindingChange> CompareFindings(const JsonResult& before, const JsonResult& after,
                                           const MatchedInstances& matched) {
  Partners oldOfNew;
  for (const auto& [old, now] : matched.pairs) oldOfNew[now] = old;
  std::vector<std::string> classes;
  AddClasses(classes, before);
  AddClasses(classes, after);
  const bool withRuns = before.runs && after.runs;

  std::vector<FindingChange> changes;
  std::map<FindingIdentity, std::deque<Finding>> gone;
  for (Finding& finding : FindingsOf(before, classes, withRuns)) {
    gone[IdentityOf(finding, before, {})].push_back(std::move(finding));
  }
  for (Finding& finding : FindingsOf(after, classes, withRuns)) {
    const auto old = gone.find(IdentityOf(finding, after, oldOfNew));
    if (old == gone.end() || old->second.empty()) {
      changes.push_back({std::nullopt, std::move(finding)});
      continue;
    }
    if (!IsSameFinding(old->second.front(), finding)) changes.push_back({old->second.front(), std::move(finding)});
    old->second.pop_front();
  }
  for (auto& [identity, findings] : gone) {
    for (Finding& finding : findings) changes.push_back({std::move(finding), std::nullopt});
  }
  std::ranges::stable_sort(changes, IsBefore);
  return changes;
}

}  // namespace hxahost
