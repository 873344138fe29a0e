#include "host/hxahost/machine/baseline.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/machine/baseline_partners.h"
#include "host/hxahost/machine/error_growth.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/machine/incident_words.h"
#include "host/hxahost/result/json_instances.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

std::string Counted(std::size_t count, std::string_view what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::size_t DisksOf(const Controller& controller) {
  return static_cast<std::size_t>(std::ranges::count(controller.devices, HardwareKind::kDisk, &Device::kind));
}

// "2 logical drives and 6 disks"
std::string ContentOf(const Controller& controller) {
  return fmt::format("{} and {}", Counted(controller.logicalDrives.size(), "logical drive"),
                     Counted(DisksOf(controller), "disk"));
}

// "Zentraxis C6-e, S/N K6E0412277"
std::string IdentityOf(const ControllerUnit& unit) {
  const std::string serial = unit.serialNumber.empty() ? "" : ", S/N " + Printable(unit.serialNumber);
  return Printable(unit.model) + serial;
}

std::string PlaceOf(const Controller& controller, const Device& device) {
  return fmt::format("{} disk at {}", ShortName(controller),
                     Printable(device.location.empty() ? device.name : device.location));
}

// One comparison, which adds changes and findings as it finds them.
class Comparison {
 public:
  Comparison(Machine& machine, const std::vector<Controller>& before, const QueryHeader& header,
             const Findings& aboutTools)
      : machine_(machine),
        before_(before),
        header_(header),
        aboutTools_(aboutTools),
        partners_(before, machine.controllers) {}

  Findings Run() {
    if (IsAskedFor(header_, kControllerClass)) CompareControllers();
    if (IsAskedFor(header_, kLogicalDiskClass)) CompareDrives();
    if (IsAskedFor(header_, kDiskDriveClass)) CompareDisks();
    return std::move(findings_);
  }

 private:
  // If the utility did not answer, or the collection as a whole failed, the state of its objects is unknown.
  Severity SeverityOfMissing(const Controller& controller) const {
    const auto isAboutTool = [&](const Finding& finding) {
      return finding.identifier == controller.tool || finding.identifier == kCollection;
    };
    const bool isAbsent = std::ranges::find(machine_.absentTools, controller.tool) != machine_.absentTools.end();
    const bool isUp = !isAbsent && std::ranges::none_of(aboutTools_, isAboutTool);
    return isUp || controller.tool.empty() ? Severity::kCritical : Severity::kUnknown;
  }

  Incident ChangeOf(const Object& object, std::size_t controller) const {
    Incident change;
    change.controller = controller;
    change.subject = object.identifier;
    change.name = Printable(object.name);
    return change;
  }

  void AddMissing(Incident change, const Object& object, const Controller& controller, const std::string& what) {
    change.severity = SeverityOfMissing(controller);
    const bool isKnown = change.severity == Severity::kCritical;
    change.urgency = isKnown ? Urgency::kReplace : Urgency::kOther;
    change.headline =
        what + (isKnown ? " is missing" : fmt::format(" is not shown: {} did not answer", controller.tool));
    const HealthRule& rule = RuleFor(kBaselinePresence, isKnown ? "missing" : "not known");
    findings_.push_back({change.severity, std::string(kBaseline), object.identifier, object.name,
                         std::string(kBaselinePresence.property), std::string(rule.word), rule.meaning});
    machine_.changes.push_back(std::move(change));
  }

  void AddInformation(Incident change, std::string headline, std::string action) {
    change.headline = std::move(headline);
    change.action = std::move(action);
    machine_.changes.push_back(std::move(change));
  }

  // A controller goes and comes with everything that belongs to it.
  void CompareControllers() {
    for (std::size_t place = 0; place < before_.size(); ++place) {
      const Controller& controller = before_[place];
      if (controller.units.empty() || partners_.controllers[place]) continue;
      Incident change = ChangeOf(controller.units.front(), machine_.controllers.size());
      change.action = "CHECK the controller: " + IdentityOf(controller.units.front());
      AddMissing(std::move(change), controller.units.front(), controller,
                 fmt::format("{} with {}", ShortName(controller), ContentOf(controller)));
    }
    for (std::size_t place = 0; place < machine_.controllers.size(); ++place) {
      const Controller& controller = machine_.controllers[place];
      if (controller.units.empty() || !IsNew(place)) continue;
      AddInformation(ChangeOf(controller.units.front(), place),
                     ShortName(controller) + " is new, with " + ContentOf(controller),
                     "NOTE the controller: " + IdentityOf(controller.units.front()));
    }
  }

  bool IsNew(std::size_t place) const {
    return std::ranges::find(partners_.controllers, std::optional(place)) == partners_.controllers.end();
  }

  void CompareDrives() {
    for (std::size_t place = 0; place < before_.size(); ++place) {
      if (!partners_.controllers[place]) continue;
      const std::size_t now = *partners_.controllers[place];
      const std::vector<LogicalDrive>& drives = machine_.controllers[now].logicalDrives;
      for (const LogicalDrive& drive : before_[place].logicalDrives) {
        if (std::ranges::find(drives, drive.number, &LogicalDrive::number) != drives.end()) continue;
        Incident change = ChangeOf(drive, now);
        change.action = "CHECK whether it was deleted, or restore it from a backup";
        AddMissing(std::move(change), drive, before_[place],
                   fmt::format("{} {}", ShortName(machine_.controllers[now]), ShortName(drive)));
      }
      for (const LogicalDrive& drive : drives) {
        const auto& known = before_[place].logicalDrives;
        if (std::ranges::find(known, drive.number, &LogicalDrive::number) != known.end()) continue;
        AddInformation(ChangeOf(drive, now),
                       fmt::format("{} {} is new", ShortName(machine_.controllers[now]), ShortName(drive)),
                       "SAVE a new baseline if this is meant");
      }
    }
  }

  void CompareDisks() {
    for (std::size_t place = 0; place < before_.size(); ++place) {
      for (std::size_t device = 0; device < before_[place].devices.size(); ++device) CompareDisk({place, device});
    }
    for (std::size_t place = 0; place < machine_.controllers.size(); ++place) {
      const Controller& controller = machine_.controllers[place];
      if (IsNew(place)) continue;
      for (std::size_t device = 0; device < controller.devices.size(); ++device) {
        if (!partners_.IsNewDisk({place, device})) continue;
        AddInformation(OfDisk({place, device}), PlaceOf(controller, controller.devices[device]) + " is new",
                       "NOTE the disk: " + DescribeDevice(controller, device));
      }
    }
  }

  Incident OfDisk(const DeviceRef& ref) const {
    const Device& device = DeviceOf(machine_, ref);
    Incident change = ChangeOf(device, ref.controller);
    change.disks = {ref};
    change.location = Printable(device.location);
    return change;
  }

  void CompareDisk(const DeviceRef& ref) {
    const Controller& controller = before_[ref.controller];
    const Device& device = controller.devices[ref.device];
    if (device.kind != HardwareKind::kDisk) return;
    if (const auto now = partners_.DiskOf(ref)) return CompareWith(ref, *now);
    const auto owner = partners_.controllers[ref.controller];
    if (!owner) return;  // it is missing with its controller
    const std::string where = PlaceOf(machine_.controllers[*owner], device);
    const DeviceRef missing{machine_.controllers.size(), machine_.missingDisks.size()};
    machine_.missingDisks.push_back(device);
    machine_.missingDisks.back().logicalDrives.clear();  // their places are those at the baseline
    Incident change = OfDisk(missing);
    change.controller = *owner;
    change.action = "CHECK whether it was pulled: " + DescribeDevice(controller, ref.device);
    AddMissing(std::move(change), device, controller, where);
  }

  void CompareWith(const DeviceRef& before, const DeviceRef& now) {
    const Controller& oldController = before_[before.controller];
    const Controller& newController = machine_.controllers[now.controller];
    const Device& oldDisk = oldController.devices[before.device];
    const Device& newDisk = newController.devices[now.device];
    if (partners_.controllers[before.controller] != now.controller || oldDisk.location != newDisk.location) {
      AddInformation(OfDisk(now),
                     fmt::format("{} was moved: it was at {} {}", PlaceOf(newController, newDisk),
                                 ShortName(oldController), Printable(oldDisk.location)),
                     "NOTE the disk: " + DescribeDevice(newController, now.device));
    }
    for (const ErrorGrowth& growth : GrowthOf(oldDisk, newDisk, header_)) {
      if (growth.finding) {
        findings_.push_back(*growth.finding);
      } else {
        AddInformation(OfDisk(now), fmt::format("{} reports {}", PlaceOf(newController, newDisk), growth.text),
                       "WATCH " + DescribeDevice(newController, now.device));
      }
    }
  }

  Machine& machine_;
  const std::vector<Controller>& before_;
  const QueryHeader& header_;
  const Findings& aboutTools_;
  BaselinePartners partners_;
  Findings findings_;
};

struct ExpectedNumber {
  std::optional<unsigned> Expectations::*number;
  std::string_view className;
  std::string_view what;
  std::size_t (*count)(const Machine& machine);
};

std::size_t CountControllers(const Machine& machine) { return CountOf(machine, kControllerClass); }

std::size_t CountDisks(const Machine& machine) {
  std::size_t count = 0;
  for (const Controller& controller : machine.controllers) count += DisksOf(controller);
  return count;
}

constexpr ExpectedNumber kExpectedNumbers[] = {
    {&Expectations::controllers, kControllerClass, "controllers", CountControllers},
    {&Expectations::disks,       kDiskDriveClass,  "disks",       CountDisks      },
};

}  // namespace

Findings BaselineFindings(Machine& machine, const QueryHeader& header, const Findings& aboutTools) {
  if (!header.expectations.baseline) return {};
  const JsonInstances made = MakeInstances(*header.expectations.baseline, HealthClasses());
  const std::vector<Controller> before = ReadControllers(made.instances);
  return Comparison(machine, before, header, aboutTools).Run();
}

Findings ExpectationFindings(Machine& machine, const QueryHeader& header) {
  const HealthRule& rule = RuleFor(kExpectedNumber, "too few");
  Findings findings;
  for (const ExpectedNumber& expected : kExpectedNumbers) {
    const std::optional<unsigned> number = header.expectations.*expected.number;
    const std::size_t found = expected.count(machine);
    if (!number || found >= *number || !IsAskedFor(header, expected.className)) continue;
    const std::string name = fmt::format("the {}", expected.what);
    findings.push_back({SeverityOf(rule.level), std::string(kExpectation), std::string(expected.what), name,
                        std::string(kExpectedNumber.property), fmt::format("{} of {}", found, *number), rule.meaning});
    Incident& change = machine.changes.emplace_back();
    change.severity = SeverityOf(rule.level);
    change.controller = machine.controllers.size();
    change.subject = expected.what;
    change.name = name;
    change.headline = fmt::format("{} of {} {} are there", found, *number, expected.what);
    change.action = InstructionOf(findings.back());
  }
  return findings;
}

}  // namespace hxahost
