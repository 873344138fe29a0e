#include "host/hxahost/machine/health.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <vector>

#include "host/hxahost/machine/device_names.h"
#include "host/hxahost/machine/device_owners.h"
#include "host/hxahost/machine/silent_controllers.h"
#include "host/hxahost/machine/tool_findings.h"
#include "host/hxahost/machine/unguarded_arrays.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr std::string_view kClasses[] = {
    kControllerClass,      kLogicalDiskClass,        kDiskGroupClass, kDiskDriveClass,
    "KVRSG_BadStripeData", "KVRSG_zxSCSIDeviceData", kRawDataClass,
};

constexpr Judgement kNotKnown = {Severity::kUnknown, "no rule knows what this says; see the manual of the utility"};

// Whether a rule that holds in one place holds for what is judged.
using Holds = std::function<bool(Where where)>;

Judgement JudgeWord(const WatchedValue& value, std::string_view word, const Holds& holds) {
  for (const HealthRule& rule : HealthRules()) {
    const bool isNamed = rule.word == word || (!rule.code.empty() && rule.code == word);
    if (rule.value == &value && isNamed && holds(rule.where)) return {rule.severity, rule.meaning};
  }
  return word.empty() ? Judgement{} : kNotKnown;  // most values may be absent
}

Judgement Judge(const WatchedValue& value, std::string_view text, const Holds& holds) {
  const Words words = value.cut(text);
  if (words.empty()) return JudgeWord(value, "", holds);
  Judgement worst;
  for (const std::string& word : words) {
    const Judgement judgement = JudgeWord(value, word, holds);
    if (IsWorse(judgement.severity, worst.severity)) worst = judgement;
  }
  return worst;
}

// Controllers that are missing among those published.
Findings ControllerFindings(const QueryResult& result) {
  Findings findings = SilentControllers(result.instances);
  const auto published = std::ranges::count_if(
      result.instances, [](const auto& instance) { return instance->Class().name == kControllerClass; });
  const std::size_t known = static_cast<std::size_t>(published) + findings.size();
  std::ranges::move(AnswerFindings(result, known), std::back_inserter(findings));
  return findings;
}

bool HoldsAnywhere(Where where) { return where == Where::kAnywhere; }

// The values of the rules, each once, in their order.
std::vector<const WatchedValue*> WatchedValues() {
  std::vector<const WatchedValue*> values;
  for (const HealthRule& rule : HealthRules()) {
    if (values.empty() || values.back() != rule.value) values.push_back(rule.value);
  }
  return values;
}

InstanceList UnguardedDrives(const InstanceList& instances) {
  InstanceList unguarded;
  std::ranges::copy_if(instances, std::back_inserter(unguarded), [](const auto& instance) {
    if (instance->Class().name != kLogicalDiskClass) return false;
    const Judgement state = JudgeText(kDriveState, RawText(*instance, kDriveState.property));
    return state.severity == Severity::kWarning || state.severity == Severity::kCritical;
  });
  return unguarded;
}

class Examination {
 public:
  explicit Examination(const InstanceList& instances)
      : instances_(instances), owners_(DeviceOwners(instances)), arrays_(UnguardedDrives(instances), instances) {}

  void Examine(const WatchedValue& value, Findings& findings) const {
    for (std::size_t place = 0; place < instances_.size(); ++place) {
      const TPublishedInstance& instance = *instances_[place];
      if (instance.Class().name != value.className) continue;
      const std::string text = RawText(instance, value.property);
      const Judgement judgement = Judge(value, text, [&](Where where) { return Holds(where, instance); });
      if (judgement.severity == Severity::kFine) continue;
      findings.push_back({judgement.severity, std::string(value.className), IdentifierOf(instance),
                          NameOf(instance, owners_[place]), std::string(value.property), text,
                          std::string(judgement.meaning), place});
    }
  }

 private:
  bool Holds(Where where, const TPublishedInstance& instance) const {
    switch (where) {
      case Where::kAnywhere: return true;
      // "Hard disk" of one utility is "Hard drive" of the others.
      case Where::kOnHardDisk: return RawText(instance, "DeviceType").find("Hard d") != std::string::npos;
      case Where::kWithChannelLine: return !RawText(instance, "ChannelDescription").empty();
      case Where::kOnUnguardedArray: return arrays_.Has(instance);
      case Where::kOnConfiguration:
      case Where::kOnState: break;
    }
    return false;
  }

  const InstanceList& instances_;
  std::vector<std::string> owners_;
  UnguardedArrays arrays_;
};

}  // namespace

std::span<const std::string_view> HealthClasses() { return kClasses; }

Judgement JudgeText(const WatchedValue& value, std::string_view text) { return Judge(value, text, HoldsAnywhere); }

Findings EvaluateHealth(const QueryHeader& header, const QueryResult& result) {
  Findings findings;
  if (IsAskedFor(header, kControllerClass)) findings = ControllerFindings(result);
  const Examination examination(result.instances);
  for (const WatchedValue* const value : WatchedValues()) examination.Examine(*value, findings);
  std::ranges::move(ToolFindings(result), std::back_inserter(findings));
  std::ranges::stable_sort(
      findings, [](const Finding& left, const Finding& right) { return IsWorse(left.severity, right.severity); });
  return findings;
}

}  // namespace hxahost
