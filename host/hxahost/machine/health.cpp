#include "host/hxahost/machine/health.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <vector>

#include "host/hxahost/machine/baseline.h"
#include "host/hxahost/machine/device_names.h"
#include "host/hxahost/machine/error_findings.h"
#include "host/hxahost/machine/silent_controllers.h"
#include "host/hxahost/machine/tool_findings.h"
#include "host/hxahost/machine/unread_objects.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr std::string_view kClasses[] = {
    kControllerClass, kLogicalDiskClass,  kDiskGroupClass, kDiskDriveClass, kFirmwareClass,
    kBadStripesClass, kDeviceErrorsClass, kTransferClass,  kEventClass,     kRawDataClass,
};

constexpr Judgement kNotKnown = {
    Level::kUnknown, {"no rule knows this word", "see the manual of the utility"}
};

// Whether a rule with this condition applies to the value that is judged.
using Holds = std::function<bool(Where where)>;

Judgement JudgeWord(const WatchedValue& value, std::string_view word, const Holds& holds) {
  for (const HealthRule& rule : HealthRules()) {
    const bool isNamed = rule.word == word || (!rule.code.empty() && rule.code == word);
    if (rule.value == &value && isNamed && holds(rule.where)) return {rule.level, rule.meaning};
  }
  return word.empty() ? Judgement{} : kNotKnown;  // most values may be absent
}

Judgement JudgeValue(const WatchedValue& value, std::string_view text, const Holds& holds) {
  const Words words = value.cut(text);
  if (words.empty()) return JudgeWord(value, "", holds);
  Judgement worst;
  for (const std::string& word : words) {
    const Judgement judgement = JudgeWord(value, word, holds);
    if (judgement.level > worst.level) worst = judgement;
  }
  return worst;
}

// Findings about controllers that are missing among those published.
Findings ControllerFindings(const Machine& machine, const QueryResult& result) {
  Findings findings = SilentControllers(machine, result.instances);
  const std::size_t known = CountOf(machine, kControllerClass) + findings.size();
  std::ranges::move(AnswerFindings(result, known), std::back_inserter(findings));
  return findings;
}

// The values that rules name, each once, in their order.
std::vector<const WatchedValue*> WatchedValues() {
  std::vector<const WatchedValue*> values;
  for (const HealthRule& rule : HealthRules()) {
    if (values.empty() || values.back() != rule.value) values.push_back(rule.value);
  }
  return values;
}

// The disks of logical drives that cannot tolerate another failure, as places of instances. A disk that is in no list
// counts as a member of any logical drive of its controller's number. A group counts once, however many drives use it.
std::set<std::size_t> UnguardedDisks(const Machine& machine) {
  std::set<std::string> numbers;
  std::set<std::size_t> placed;
  std::set<std::size_t> unguarded;
  for (const Controller& controller : machine.controllers) {
    const auto place = [&](const std::vector<std::size_t>& devices, bool isUnguarded) {
      for (const std::size_t device : devices) {
        placed.insert(controller.devices[device].instance);
        if (isUnguarded) unguarded.insert(controller.devices[device].instance);
      }
    };
    std::map<std::size_t, bool> groups;  // whether a drive on it cannot tolerate another failure
    for (const LogicalDrive& drive : controller.logicalDrives) {
      const bool isUnguarded = JudgeText(kDriveState, drive.state.text).level >= Level::kWarning;
      if (isUnguarded) numbers.insert(controller.number);
      place(drive.devices, isUnguarded);
      for (const std::size_t group : drive.groups) groups[group] = groups[group] || isUnguarded;
    }
    for (const auto& [group, isUnguarded] : groups) place(controller.groups[group].devices, isUnguarded);
  }
  for (const Controller& controller : machine.controllers) {
    for (const Device& device : controller.devices) {
      const bool isUnplaced = numbers.contains(controller.number) && !placed.contains(device.instance);
      if (isUnplaced) unguarded.insert(device.instance);
    }
  }
  return unguarded;
}

// Controllers with failed spares and no other fault of a disk or drive, as places of instances.
std::set<std::size_t> FailedSpares(const Machine& machine) {
  std::set<std::size_t> places;
  for (const Controller& controller : machine.controllers) {
    Level worst = Level::kFine;
    for (const Device& device : controller.devices) {
      worst = std::max(worst, JudgeText(kDiskState, device.state.text).level);
    }
    const bool isWhole = std::ranges::all_of(controller.logicalDrives, [](const LogicalDrive& drive) {
      return JudgeText(kDriveState, drive.state.text).level < Level::kWarning;
    });
    if (worst != Level::kWarning || !isWhole) continue;
    for (const ControllerUnit& unit : controller.units) places.insert(unit.instance);
  }
  return places;
}

// "Hard disk" of one utility is "Hard drive" of the others.
constexpr std::string_view kHardDisk = "Hard d";

bool IsKnownType(std::string_view type) {
  constexpr std::string_view kTypes[] = {kHardDisk, "Tape", "Enclosure", "Processor", "Unknown"};
  return std::ranges::any_of(kTypes, [type](std::string_view each) { return type.find(each) != type.npos; });
}

class Examination {
 public:
  Examination(Machine& machine, const InstanceList& instances)
      : instances_(instances),
        objects_(instances.size()),
        unguarded_(UnguardedDisks(machine)),
        failedSpares_(FailedSpares(machine)) {
    for (Controller& controller : machine.controllers) {
      AddObjects(controller.units);
      AddObjects(controller.logicalDrives);
      AddObjects(controller.groups);
      AddObjects(controller.devices);
    }
  }

  void Examine(const WatchedValue& value, Findings& findings) {
    for (std::size_t place = 0; place < instances_.size(); ++place) {
      const TPublishedInstance& instance = *instances_[place];
      if (instance.Class().name != value.className) continue;
      const std::string text = RawText(instance, value.property);
      const Judgement judgement = JudgeValue(value, text, [&](Where where) { return Holds(where, place); });
      Object* const object = objects_[place];
      if (object != nullptr && object->state.property == value.property) {
        object->state.level = object->level = judgement.level;
      }
      const Severity severity = SeverityOf(judgement.level);
      if (severity == Severity::kFine) continue;
      findings.push_back({severity, std::string(value.className), IdentifierOf(instance),
                          object == nullptr ? NameOf(instance, "") : object->name, std::string(value.property), text,
                          judgement.meaning, place});
    }
  }

  // Adds to each object the findings about it.
  void Assign(const Findings& findings) {
    for (std::size_t index = 0; index < findings.size(); ++index) {
      const auto& instance = findings[index].instance;
      if (!instance || objects_[*instance] == nullptr) continue;
      Object& object = *objects_[*instance];
      object.findings.push_back(index);
      object.level = std::max(object.level, LevelOf(findings[index].severity));
    }
  }

 private:
  template <class Kind>
  void AddObjects(std::vector<Kind>& objects) {
    for (Kind& object : objects) objects_[object.instance] = &object;
  }

  bool Holds(Where where, std::size_t place) const {
    switch (where) {
      case Where::kAnywhere: return true;
      case Where::kOnHardDisk: return RawText(*instances_[place], "DeviceType").find(kHardDisk) != std::string::npos;
      case Where::kOnUnknownType: return !IsKnownType(RawText(*instances_[place], "DeviceType"));
      case Where::kWithChannelLine: return !RawText(*instances_[place], "ChannelDescription").empty();
      case Where::kOnUnguardedArray: return unguarded_.contains(place);
      case Where::kOnFailedSpares: return failedSpares_.contains(place);
      case Where::kOnConfiguration:
      case Where::kOnState:
      case Where::kOnOptional: break;
    }
    return false;
  }

  const InstanceList& instances_;
  std::vector<Object*> objects_;  // by the place of their instance; null for instances that are not objects
  std::set<std::size_t> unguarded_;
  std::set<std::size_t> failedSpares_;
};

}  // namespace

std::span<const std::string_view> HealthClasses() { return kClasses; }

Judgement JudgeText(const WatchedValue& value, std::string_view text) {
  return JudgeValue(value, text, [](Where where) { return where == Where::kAnywhere; });
}

void Judge(Machine& machine, const QueryHeader& header, const QueryResult& result) {
  Findings& findings = machine.findings;
  machine.absentTools = OptionalTools(header.expectations, result.runs);
  if (IsAskedFor(header, kControllerClass)) findings = ControllerFindings(machine, result);
  std::ranges::move(UnreadObjects(machine, header, result.instances), std::back_inserter(findings));
  Examination examination(machine, result.instances);
  for (const WatchedValue* const value : WatchedValues()) examination.Examine(*value, findings);
  Findings aboutTools = ToolFindings(machine, header, result);
  std::ranges::move(ExpectationFindings(machine, header), std::back_inserter(findings));
  std::ranges::move(BaselineFindings(machine, header, aboutTools), std::back_inserter(findings));
  std::ranges::move(ErrorFindings(header, result.instances), std::back_inserter(findings));
  std::ranges::move(aboutTools, std::back_inserter(findings));
  std::ranges::stable_sort(
      findings, [](const Finding& left, const Finding& right) { return IsWorse(left.severity, right.severity); });
  examination.Assign(findings);
}

}  // namespace hxahost
