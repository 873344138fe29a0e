#include "host/hxahost/machine/machine.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <system_error>
#include <unordered_map>
#include <utility>

#include "host/hxahost/machine/counts.h"
#include "host/hxahost/machine/device_names.h"
#include "host/hxahost/machine/device_owners.h"
#include "host/hxahost/machine/health.h"
#include "host/hxahost/machine/incidents.h"
#include "host/hxahost/machine/members.h"
#include "host/hxahost/machine/operations.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// "0,7" reports the place of a device in one property.
void SetPlace(Device& device, const TPublishedInstance& instance) {
  const std::string reported = RawText(instance, "ReportedChannel");
  const std::size_t comma = std::min(reported.find(','), reported.size());
  device.channel = RawText(instance, "Channel");
  device.id = RawText(instance, "ScsiId");
  if (device.channel.empty()) device.channel = reported.substr(0, comma);
  if (device.id.empty()) device.id = reported.substr(std::min(comma + 1, reported.size()));
}

void Describe(ControllerUnit& unit, const TPublishedInstance& instance) {
  unit.model = RawText(instance, "ControllerType");
  const std::string battery = RawText(instance, kBattery.property);
  const std::string capacity = RawText(instance, "ControllerBatteryCapacity");
  unit.battery = {
      {kBattery.property, battery, JudgeText(kBattery, battery).level},
      RawText(instance, "ControllerBatteryOverTemp"),
      capacity,
      LeadingNumber(capacity),
      RawText(instance, "BatteryTimeRemaining"),
      RawText(instance, "ControllerBatteryFRU"),
  };
  unit.serialNumber = RawText(instance, "SerialNum");
  unit.temperature = {kHeat.property, RawText(instance, kHeat.property)};
  unit.temperature.level = JudgeText(kHeat, unit.temperature.text).level;
  unit.celsius = LeadingNumber(unit.temperature.text);
}

void Describe(LogicalDrive& drive, const TPublishedInstance& instance) {
  drive.number = RawText(instance, "LogicalDriveNum");
  drive.title = RawText(instance, "LogicalDriveName");
  drive.raidLevel = RawText(instance, "RaidLevel");
  drive.size = RawText(instance, "Size");
  drive.bytes = ReadBytes(drive.size);
}

void Describe(DiskGroup&, const TPublishedInstance&) {}

// "Hard disk" of one utility is "Hard drive" of the others.
HardwareKind KindOf(std::string_view type) {
  struct Naming {
    std::string_view part;
    HardwareKind kind;
  };
  constexpr Naming kNamings[] = {
      {"Hard d",    HardwareKind::kDisk     },
      {"Tape",      HardwareKind::kTape     },
      {"Enclosure", HardwareKind::kEnclosure},
  };
  const auto* const naming =
      std::ranges::find_if(kNamings, [&](const Naming& each) { return type.find(each.part) != type.npos; });
  return naming == std::end(kNamings) ? HardwareKind::kOther : naming->kind;
}

void Describe(Device& device, const TPublishedInstance& instance) {
  SetPlace(device, instance);
  device.location = LocationOf(instance, device.channel, device.id);
  device.type = RawText(instance, "DeviceType");
  device.kind = KindOf(device.type);
  device.vendor = RawText(instance, "Vendor");
  device.model = RawText(instance, "Model");
  device.serialNumber = RawText(instance, "DeviceSerialNum");
  device.fru = RawText(instance, "FRU");
  device.firmware = RawText(instance, "Firmware");
  device.size = RawText(instance, "Size");
  device.bytes = ReadBytes(device.size);
}

// Adds the instances of a class to the lists of their controllers, and creates a controller when it first occurs.
class Sorter {
 public:
  explicit Sorter(const InstanceList& instances) : instances_(instances), owners_(DeviceOwners(instances)) {}

  template <class Kind>
  void Add(std::string_view className, std::vector<Kind> Controller::*list, std::string_view stateProperty) {
    for (std::size_t place = 0; place < instances_.size(); ++place) {
      const TPublishedInstance& instance = *instances_[place];
      if (instance.Class().name != className) continue;
      Kind& object = (ControllerOf(owners_[place]).*list).emplace_back();
      object.instance = place;
      object.identifier = IdentifierOf(instance);
      object.name = NameOf(instance, owners_[place].label);
      object.state = {stateProperty, RawText(instance, stateProperty)};
      Describe(object, instance);
    }
  }

  std::vector<Controller> Take() { return std::move(controllers_); }

 private:
  Controller& ControllerOf(const DeviceOwner& owner) {
    const auto [place, isNew] = places_.emplace(owner.label, controllers_.size());
    if (isNew) controllers_.push_back({owner.number, owner.label, owner.tool, {}, {}, {}, {}});
    return controllers_[place->second];
  }

  const InstanceList& instances_;
  std::vector<DeviceOwner> owners_;
  std::vector<Controller> controllers_;
  std::unordered_map<std::string, std::size_t> places_;
};

// Versions contain only the number of their controller. If controllers share the number, each must have one version,
// so that the order decides.
void FindFirmware(std::vector<Controller>& controllers, const InstanceList& instances) {
  std::unordered_map<std::string, std::vector<std::string>> versions;
  for (const auto& instance : instances) {
    if (instance->Class().name != kFirmwareClass) continue;
    versions[RawText(*instance, "SoftwareElementID")].push_back(RawText(*instance, "Version"));
  }
  std::unordered_map<std::string, std::vector<ControllerUnit*>> units;
  for (Controller& controller : controllers) {
    for (ControllerUnit& unit : controller.units) units[controller.number].push_back(&unit);
  }
  for (const auto& [number, sharing] : units) {
    const std::vector<std::string>& known = versions[number];
    if (known.size() != sharing.size()) continue;
    for (std::size_t index = 0; index < known.size(); ++index) sharing[index]->firmware = known[index];
  }
}

template <class Kind>
std::vector<const Object*> Pointers(const std::vector<Kind>& objects) {
  std::vector<const Object*> pointers;
  for (const Kind& object : objects) pointers.push_back(&object);
  return pointers;
}

}  // namespace

std::vector<Controller> ReadControllers(const InstanceList& instances) {
  Sorter sorter(instances);
  sorter.Add(kControllerClass, &Controller::units, kControllerStatus.property);
  sorter.Add(kLogicalDiskClass, &Controller::logicalDrives, kDriveState.property);
  sorter.Add(kDiskGroupClass, &Controller::groups, {});
  sorter.Add(kDiskDriveClass, &Controller::devices, kDiskState.property);
  std::vector<Controller> controllers = sorter.Take();
  for (Controller& controller : controllers) FindMembers(controller, instances);
  FindFirmware(controllers, instances);
  FindOperations(controllers, instances);
  FindCounts(controllers, instances);
  return controllers;
}

const Device& DeviceOf(const Machine& machine, const DeviceRef& disk) {
  const bool isMissing = disk.controller == machine.controllers.size();
  return (isMissing ? machine.missingDisks : machine.controllers[disk.controller].devices)[disk.device];
}

Machine BuildMachine(const QueryHeader& header, const QueryResult& result) {
  Machine machine;
  machine.controllers = ReadControllers(result.instances);
  Judge(machine, header, result);
  FindIncidents(machine, result.instances);
  return machine;
}

std::vector<const Object*> ObjectsOf(const Controller& controller, std::string_view className) {
  if (className == kControllerClass) return Pointers(controller.units);
  if (className == kLogicalDiskClass) return Pointers(controller.logicalDrives);
  return className == kDiskGroupClass ? Pointers(controller.groups) : Pointers(controller.devices);
}

std::size_t CountOf(const Machine& machine, std::string_view className) {
  std::size_t count = 0;
  for (const Controller& controller : machine.controllers) count += ObjectsOf(controller, className).size();
  return count;
}

Level LevelOf(const Machine& machine, const Object& object, std::string_view property) {
  for (const std::size_t place : object.findings) {
    if (machine.findings[place].property == property) return LevelOf(machine.findings[place].severity);
  }
  return property == object.state.property ? object.state.level : Level::kUnsaid;
}

std::optional<std::uint64_t> ReadBytes(std::string_view size) {
  struct Unit {
    std::string_view name;
    double bytes;
  };
  constexpr double kKilo = 1024.0;
  constexpr Unit kUnits[] = {
      {"",   kKilo * kKilo                },
      {"MB", kKilo * kKilo                },
      {"GB", kKilo * kKilo * kKilo        },
      {"TB", kKilo * kKilo * kKilo * kKilo},
  };
  constexpr double kSector = 512.0;
  const std::size_t slash = size.find('/');
  if (slash != size.npos) size.remove_prefix(slash + 1);
  double number = 0;
  const auto [stop, error] = std::from_chars(size.data(), size.data() + size.size(), number, std::chars_format::fixed);
  size.remove_prefix(static_cast<std::size_t>(stop - size.data()));
  size.remove_prefix(std::min(size.find_first_not_of(' '), size.size()));
  const auto* const unit = std::ranges::find(kUnits, size, &Unit::name);
  if (error != std::errc() || unit == std::end(kUnits) || (slash != size.npos && !size.empty())) return std::nullopt;
  const double bytes = number * (slash == size.npos ? unit->bytes : kSector);
  if (!(bytes >= 0 && bytes < 1e18)) return std::nullopt;  // infinity, too
  return static_cast<std::uint64_t>(bytes);
}

}  // namespace hxahost
