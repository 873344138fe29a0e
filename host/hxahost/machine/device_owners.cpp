#include "host/hxahost/machine/device_owners.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "host/hxahost/machine/members.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_names.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

// What a property that is not empty shows about the utility. Likely signs count only after certain ones have shown that
// two controllers share a number: in a complete answer they distinguish a utility from those of the rows above.
enum class Certainty { kCertain, kLikely };

struct OwnerSign {
  std::string_view className;
  std::string_view property;
  std::string_view tool;
  Certainty certainty;
};

constexpr auto kCertain = Certainty::kCertain;
constexpr auto kLikely = Certainty::kLikely;

constexpr OwnerSign kOwnerSigns[] = {
    {kControllerClass,  "ScsiChannelDescr",       kQcmdrun, kCertain},
    {kControllerClass,  "InitiatorChannelScsiId", kQcmdrun, kCertain},
    {kControllerClass,  "MaxPhysicalDevices",     kQcmdrun, kCertain},
    {kControllerClass,  "ReadAhead",              kQcmdrun, kCertain},
    {kControllerClass,  "InstalledMemory",        kArcconf, kCertain},
    {kControllerClass,  "CopyBackEnabled",        kArcconf, kCertain},
    {kControllerClass,  "VPD",                    kArcconf, kCertain},
    {kControllerClass,  "ControllerType",         kArcconf, kLikely },
    {kControllerClass,  "SerialNum",              kArcconf, kLikely },
    {kControllerClass,  "ChannelDescription",     kHrconf,  kLikely },
    {kControllerClass,  "ControllerStatus",       kHrconf,  kLikely },
    {kLogicalDiskClass, "AccessBlocked",          kQcmdrun, kCertain},
    {kLogicalDiskClass, "PartOfArray",            kQcmdrun, kCertain},
    {kLogicalDiskClass, "PartOfMergeGroup",       kQcmdrun, kCertain},
    {kLogicalDiskClass, "NumOfSegments",          kArcconf, kCertain},
    {kLogicalDiskClass, "Partitioned",            kArcconf, kCertain},
    {kLogicalDiskClass, "DefunctSegments",        kArcconf, kCertain},
    {kLogicalDiskClass, "WriteCacheSetting",      kArcconf, kCertain},
    {kLogicalDiskClass, "NumOfChunks",            kHrconf,  kCertain},
    {kLogicalDiskClass, "DriveList",              kHrconf,  kLikely },
    {kDiskGroupClass,   "Array",                  kQcmdrun, kCertain},
    {kDiskDriveClass,   "ReportedESD",            kArcconf, kCertain},
    {kDiskDriveClass,   "ReportedLocation",       kArcconf, kCertain},
    {kDiskDriveClass,   "EnclosureId",            kArcconf, kCertain},
    {kDiskDriveClass,   "DeviceNumber",           kHrconf,  kCertain},
    {kDiskDriveClass,   "ScsiId",                 kQcmdrun, kLikely },
    {kDiskDriveClass,   "Channel",                kQcmdrun, kLikely },
};

struct Owner {
  std::string_view tool;  // empty: unknown
  Certainty certainty = Certainty::kLikely;
};

// "Device #4" of arcconf is "4" of hrconf_64.
Owner ToolOf(const TPublishedInstance& instance) {
  if (RawText(instance, "DeviceNumber").starts_with("Device")) return {kArcconf, Certainty::kCertain};
  for (const OwnerSign& sign : kOwnerSigns) {
    if (instance.Class().name != sign.className || RawText(instance, sign.property).empty()) continue;
    return {sign.tool, sign.certainty};
  }
  return {};
}

// The drives that an array without a letter may belong to.
using DrivesByName = std::multimap<std::string, const TPublishedInstance*>;

DrivesByName LogicalDrives(const InstanceList& instances) {
  DrivesByName drives;
  for (const auto& instance : instances) {
    if (instance->Class().name != kLogicalDiskClass) continue;
    drives.emplace(DriveKey(RawText(*instance, "ControllerNum"), RawText(*instance, "LogicalDriveNum")),
                   instance.get());
  }
  return drives;
}

// An array without a letter comes from the utility whose drive has the same disks.
Owner ToolOfArray(const TPublishedInstance& array, const DrivesByName& drives) {
  const std::vector<std::string> places = PlacesIn(RawText(array, "StripeOrder"));
  const auto [first, last] = drives.equal_range(DriveKeyOf(array));
  const auto drive = std::find_if(first, last, [&places](const auto& each) {
    return places == PlacesIn(RawText(*each.second, "StripeOrder")) ||
           places == PlacesIn(RawText(*each.second, "DriveList"));
  });
  return drive == last ? Owner() : ToolOf(*drive->second);
}

// A device with its number and the utility that described it; the number is empty for instances that are not devices.
struct Owned {
  std::string number;
  Owner owner;
};

std::vector<Owned> FindOwners(const InstanceList& instances) {
  constexpr std::string_view kDevices[] = {kControllerClass, kLogicalDiskClass, kDiskGroupClass, kDiskDriveClass};
  const DrivesByName drives = LogicalDrives(instances);
  std::vector<Owned> owners;
  for (const auto& instance : instances) {
    if (std::ranges::find(kDevices, instance->Class().name) == std::end(kDevices)) {
      owners.emplace_back();
      continue;
    }
    Owner owner = ToolOf(*instance);
    if (owner.tool.empty() && instance->Class().name == kDiskGroupClass) owner = ToolOfArray(*instance, drives);
    owners.push_back({RawText(*instance, "ControllerNum"), owner});
  }
  return owners;
}

// The numbers that controllers of two utilities share.
std::set<std::string> SharedNumbers(const InstanceList& instances, const std::vector<Owned>& owners) {
  std::map<std::string, std::set<std::string_view>> certain;
  std::map<std::string, std::set<std::string_view>> controllers;
  for (std::size_t place = 0; place < owners.size(); ++place) {
    const auto& [number, owner] = owners[place];
    if (owner.tool.empty() || number.empty()) continue;
    if (owner.certainty == Certainty::kCertain) certain[number].insert(owner.tool);
    if (instances[place]->Class().name == kControllerClass) controllers[number].insert(owner.tool);
  }
  std::set<std::string> shared;
  for (const auto* const tools : {&certain, &controllers}) {
    for (const auto& [number, names] : *tools) {
      if (names.size() > 1) shared.insert(number);
    }
  }
  return shared;
}

}  // namespace

std::vector<DeviceOwner> DeviceOwners(const InstanceList& instances) {
  const std::vector<Owned> owned = FindOwners(instances);
  const std::set<std::string> shared = SharedNumbers(instances, owned);
  std::vector<DeviceOwner> owners;
  for (const auto& [number, owner] : owned) {
    const std::string tool(owner.tool.empty() ? "tool not known" : owner.tool);
    owners.push_back({number, shared.contains(number) ? number + " (" + tool + ")" : number, owner.tool});
  }
  return owners;
}

}  // namespace hxahost
