#include "host/hxahost/machine/cause.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <numeric>
#include <optional>
#include <tuple>
#include <unordered_map>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/members.h"
#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_names.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// Findings about a controller that have no cause in common with its others.
constexpr Effect kKinds[] = {Effect::kHeat, Effect::kBattery, Effect::kUnread, Effect::kUnchecked};

// What a finding is about: a logical drive or device of a controller, or the controller as a whole.
struct Subject {
  std::size_t controller = kNone;
  std::size_t drive = kNone;
  std::size_t device = kNone;
};

bool HasWord(const State& state, std::string_view part) {
  return std::ranges::any_of(StateWords(state.text),
                             [&](const std::string& word) { return word.find(part) != word.npos; });
}

// The utility that a log finding is about: findings about its runs have the same cause.
std::string_view ToolOfLogged(const Finding& finding) {
  const auto rule = std::ranges::find_if(HealthRules(), [&](const HealthRule& each) {
    return each.value == &kLogText && each.meaning == finding.meaning;
  });
  return rule == HealthRules().end() ? std::string_view() : rule->tools;
}

std::string PlaceKey(const std::string& controller, const std::string& channel, const std::string& id) {
  return controller + "/" + channel + "," + id;
}

// Finds the objects of findings. Counters identify their device only by numbers, and come from the legacy utility.
class Subjects {
 public:
  Subjects(const Machine& machine, const InstanceList& instances) : machine_(machine), instances_(instances) {
    for (std::size_t place = 0; place < machine.controllers.size(); ++place) Add(place);
  }

  Subject Of(const Finding& finding) const {
    if (finding.className == kControllerClass && !finding.instance) return Missing(finding);
    if (!finding.instance) return {};
    const auto object = objects_.find(*finding.instance);
    if (object != objects_.end()) return object->second;
    const TPublishedInstance& instance = *instances_[*finding.instance];
    const std::string controller = RawText(instance, "ControllerNum");
    return Found(finding.className == kBadStripesClass
                     ? controller + "/" + RawText(instance, "LogicalDrive")
                     : PlaceKey(controller, RawText(instance, "Channel"), RawText(instance, "ScsiId")));
  }

 private:
  void Add(std::size_t place) {
    const Controller& controller = machine_.controllers[place];
    for (const ControllerUnit& unit : controller.units) objects_[unit.instance] = {place, kNone, kNone};
    for (std::size_t drive = 0; drive < controller.logicalDrives.size(); ++drive) {
      const LogicalDrive& each = controller.logicalDrives[drive];
      objects_[each.instance] = {place, drive, kNone};
      Name(controller, controller.number + "/" + each.number, {place, drive, kNone});
    }
    for (std::size_t device = 0; device < controller.devices.size(); ++device) {
      const Device& each = controller.devices[device];
      objects_[each.instance] = {place, kNone, device};
      Name(controller, PlaceKey(controller.number, each.channel, each.id), {place, kNone, device});
    }
  }

  void Name(const Controller& controller, const std::string& key, const Subject& subject) {
    if (controller.tool == kQcmdrun) names_[key] = subject;
    names_.emplace(key, subject);
  }

  Subject Found(const std::string& key) const {
    const auto found = names_.find(key);
    return found == names_.end() ? Subject() : found->second;
  }

  // "Zentraxis4" is not published, but its parts are.
  Subject Missing(const Finding& finding) const {
    for (std::size_t place = 0; place < machine_.controllers.size(); ++place) {
      const Controller& controller = machine_.controllers[place];
      if (controller.units.empty() && finding.name == "controller " + controller.number) return {place, kNone, kNone};
    }
    return {};
  }

  const Machine& machine_;
  const InstanceList& instances_;
  std::unordered_map<std::size_t, Subject> objects_;  // by the place of their instance
  std::unordered_map<std::string, Subject> names_;    // by the numbers in counters
};

// The logical drives and devices of a controller, joined if they have one cause. A node is a drive; devices follow
// the drives.
class Joints {
 public:
  Joints(const Machine& machine, const Controller& controller)
      : machine_(machine),
        controller_(controller),
        heads_(controller.logicalDrives.size() + controller.devices.size()) {
    std::iota(heads_.begin(), heads_.end(), std::size_t{0});
    for (std::size_t drive = 0; drive < controller_.logicalDrives.size(); ++drive) JoinMembers(drive);
    JoinDrivesOfGroups();
    for (std::size_t device = 0; device < controller_.devices.size(); ++device) JoinLoose(device);
  }

  std::size_t Head(const Subject& subject) {
    return HeadOf(subject.drive != kNone ? subject.drive : NodeOf(subject.device));
  }

 private:
  std::size_t NodeOf(std::size_t device) const { return controller_.logicalDrives.size() + device; }

  std::size_t HeadOf(std::size_t node) {
    while (heads_[node] != node) node = heads_[node] = heads_[heads_[node]];
    return node;
  }

  void Join(std::size_t left, std::size_t right) { heads_[HeadOf(left)] = HeadOf(right); }

  bool IsHit(std::size_t drive) const {
    const LogicalDrive& each = controller_.logicalDrives[drive];
    return HasEffect(machine_, each, Effect::kDegraded) || HasEffect(machine_, each, Effect::kUnreachable) ||
           HasEffect(machine_, each, Effect::kRebuilding) || HasEffect(machine_, each, Effect::kSegment);
  }

  bool IsCulprit(std::size_t device) const {
    return IsFailed(machine_, controller_.devices[device]) || IsRebuilding(controller_.devices[device]);
  }

  void JoinMembers(std::size_t drive) {
    if (!IsHit(drive)) return;
    for (const std::size_t device : controller_.logicalDrives[drive].members) {
      if (IsCulprit(device)) Join(drive, NodeOf(device));
    }
  }

  void JoinDrivesOfGroups() {
    std::map<std::size_t, std::size_t> firsts;  // the first affected drive of each group
    for (std::size_t drive = 0; drive < controller_.logicalDrives.size(); ++drive) {
      if (!IsHit(drive)) continue;
      for (const std::size_t group : controller_.logicalDrives[drive].groups) {
        Join(drive, firsts.emplace(group, drive).first->second);
      }
    }
  }

  // Joins a failed disk that no logical drive names any more to the drive that lost it: the only affected one without a
  // failed disk, which is being rebuilt if a spare has taken the place of the disk.
  void JoinLoose(std::size_t device) {
    if (!IsFailed(machine_, controller_.devices[device]) || !controller_.devices[device].logicalDrives.empty()) return;
    const bool isReplaced = HasWord(controller_.devices[device].state, "spare");
    std::vector<std::size_t> candidates;
    for (std::size_t drive = 0; drive < controller_.logicalDrives.size(); ++drive) {
      if (!IsHit(drive) || isReplaced != IsRebuilt(drive) || HasFailedMember(drive)) continue;
      if (std::ranges::none_of(candidates, [&](std::size_t each) { return HeadOf(each) == HeadOf(drive); })) {
        candidates.push_back(drive);
      }
    }
    if (candidates.size() == 1) Join(candidates.front(), NodeOf(device));
  }

  bool IsRebuilt(std::size_t drive) const {
    const LogicalDrive& each = controller_.logicalDrives[drive];
    return HasWord(each.state, "rebuil") || std::ranges::any_of(each.members, [&](std::size_t device) {
             return IsRebuilding(controller_.devices[device]);
           });
  }

  bool HasFailedMember(std::size_t drive) const {
    return std::ranges::any_of(controller_.logicalDrives[drive].members,
                               [&](std::size_t device) { return IsFailed(machine_, controller_.devices[device]); });
  }

  const Machine& machine_;
  const Controller& controller_;
  std::vector<std::size_t> heads_;
};

class Sorting {
 public:
  Sorting(const Machine& machine, const InstanceList& instances) : machine_(machine), subjects_(machine, instances) {
    for (const Controller& controller : machine.controllers) joints_.emplace_back(machine, controller);
  }

  std::vector<Cause> Causes() {
    std::vector<std::size_t> counted;
    for (std::size_t place = 0; place < machine_.findings.size(); ++place) {
      const Finding& finding = machine_.findings[place];
      if (finding.meaning.effect == Effect::kCounted) {
        counted.push_back(place);
      } else {
        Add(place, subjects_.Of(finding));
      }
    }
    for (const std::size_t place : counted) AddCounted(place);
    for (Cause& cause : causes_) Tidy(cause);
    return std::move(causes_);
  }

 private:
  // Controller, node and kind: findings with equal keys have one cause. A finding without an object has its name as
  // key.
  using Key = std::tuple<std::size_t, std::size_t, std::string>;

  Key KeyOf(const Finding& finding, const Subject& subject) {
    if (subject.controller == kNone) {
      if (finding.className == kEventClass) return {kNone, kNone, finding.className};
      if (finding.className == kLog) return {kNone, kNone, std::string(ToolOfLogged(finding))};
      return {kNone, kNone, finding.instance ? finding.name : finding.identifier};
    }
    if (subject.drive != kNone || subject.device != kNone) {
      return {subject.controller, joints_[subject.controller].Head(subject), ""};
    }
    const bool isKind = std::ranges::find(kKinds, finding.meaning.effect) != std::end(kKinds);
    return {subject.controller, kNone, isKind ? std::to_string(static_cast<int>(finding.meaning.effect)) : ""};
  }

  void Add(std::size_t place, const Subject& subject) {
    const auto [known, isNew] = places_.emplace(KeyOf(machine_.findings[place], subject), causes_.size());
    if (isNew) causes_.push_back({subject.controller, {}, {}, {}});
    Cause& cause = causes_[known->second];
    cause.findings.push_back(place);
    if (subject.drive != kNone) cause.drives.push_back(subject.drive);
    if (subject.device != kNone) cause.devices.push_back(subject.device);
  }

  // The worst cause of a controller explains its counters: findings come worst first.
  void AddCounted(std::size_t place) {
    const Subject subject = subjects_.Of(machine_.findings[place]);
    const auto cause = std::ranges::find_if(causes_, [&](const Cause& each) {
      return each.controller == subject.controller && subject.controller != kNone && IsCounted(each);
    });
    if (cause != causes_.end()) {
      cause->findings.push_back(place);
      return;
    }
    Add(place, subject);
  }

  bool IsCounted(const Cause& cause) const {
    const std::vector<Device>& devices = machine_.controllers[cause.controller].devices;
    return std::ranges::any_of(cause.devices,
                               [&](std::size_t device) { return IsFailed(machine_, devices[device]); }) ||
           std::ranges::any_of(cause.findings, [&](std::size_t place) {
             const Effect effect = machine_.findings[place].meaning.effect;
             return effect == Effect::kDegraded || effect == Effect::kUnreachable;
           });
  }

  // Adds the devices that are being rebuilt: they have no finding of their own.
  void Tidy(Cause& cause) {
    if (cause.controller == kNone) {
      cause.controller = machine_.controllers.size();
      return;
    }
    const Controller& controller = machine_.controllers[cause.controller];
    for (const std::size_t drive : cause.drives) {
      std::ranges::copy_if(controller.logicalDrives[drive].members, std::back_inserter(cause.devices),
                           [&](std::size_t device) { return IsRebuilding(controller.devices[device]); });
    }
    for (auto* const places : {&cause.drives, &cause.devices, &cause.findings}) {
      std::ranges::sort(*places);
      places->erase(std::unique(places->begin(), places->end()), places->end());
    }
  }

  const Machine& machine_;
  Subjects subjects_;
  std::vector<Joints> joints_;
  std::vector<Cause> causes_;
  std::map<Key, std::size_t> places_;
};

}  // namespace

bool HasEffect(const Machine& machine, const Object& object, Effect effect) {
  return std::ranges::any_of(object.findings,
                             [&](std::size_t place) { return machine.findings[place].meaning.effect == effect; });
}

bool IsFailed(const Machine& machine, const Device& device) {
  return HasEffect(machine, device, Effect::kDiskFailed) || HasEffect(machine, device, Effect::kDiskMissing);
}

bool IsRebuilding(const Device& device) { return HasWord(device.state, "rebuil"); }

std::vector<Cause> FindCauses(const Machine& machine, const InstanceList& instances) {
  return Sorting(machine, instances).Causes();
}

}  // namespace hxahost
