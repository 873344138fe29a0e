#include "host/hxahost/device_owners.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <iterator>
#include <map>
#include <set>
#include <span>
#include <string_view>
#include <utility>

#include "host/hxahost/published_text.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

constexpr std::string_view kController = "KVRSG_zxSCSIProtocolController";
constexpr std::string_view kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr std::string_view kDiskGroup = "KVRSG_zxDiskGroup";
constexpr std::string_view kDiskDrive = "KVRSG_zxDiskDrive";

constexpr std::string_view kLegacy = "qcmdrun";
constexpr std::string_view kArcconf = "arcconf";
constexpr std::string_view kHrconf = "hrconf_64";

// Properties that, of all utilities not named before, one alone fills.
struct Sign {
  std::string_view className;
  std::string_view tool;
  std::string_view properties[5];
};

constexpr Sign kSigns[] = {
    {kController,  kLegacy,  {"ScsiChannelDescr", "InitiatorChannelScsiId", "MaxPhysicalDevices", "ReadAhead"}},
    {kController,  kArcconf, {"ControllerType", "SerialNum", "InstalledMemory", "CopyBackEnabled", "VPD"}     },
    {kController,  kHrconf,  {"ChannelDescription", "ControllerStatus"}                                       },
    {kLogicalDisk, kLegacy,  {"AccessBlocked", "PartOfArray", "PartOfMergeGroup"}                             },
    {kLogicalDisk, kArcconf, {"NumOfSegments", "Partitioned", "DefunctSegments", "WriteCacheSetting"}         },
    {kLogicalDisk, kHrconf,  {"DriveList", "NumOfChunks"}                                                     },
    {kDiskGroup,   kLegacy,  {"Array"}                                                                        },
    {kDiskDrive,   kArcconf, {"ReportedESD", "ReportedLocation", "EnclosureId"}                               },
    {kDiskDrive,   kHrconf,  {"DeviceNumber"}                                                                 },
    {kDiskDrive,   kLegacy,  {"ScsiId", "Channel"}                                                            },
};

bool IsShownBy(const Sign& sign, const TPublishedInstance& instance) {
  return std::ranges::any_of(sign.properties, [&instance](std::string_view property) {
    return !property.empty() && !PublishedText(instance, property).empty();
  });
}

// "Device #4" of arcconf is "4" of hrconf_64.
std::string_view ToolOf(const TPublishedInstance& instance) {
  if (PublishedText(instance, "DeviceNumber").starts_with("Device")) return kArcconf;
  for (const Sign& sign : kSigns) {
    if (instance.Class().name == sign.className && IsShownBy(sign, instance)) return sign.tool;
  }
  return {};
}

// The pairs "0,7" in a list of places, whatever stands around them.
std::vector<std::string> PlacesIn(const std::string& text) {
  const auto isPart = [](unsigned char character) { return std::isdigit(character) != 0 || character == ','; };
  std::vector<std::string> places;
  for (auto first = std::ranges::find_if(text, isPart); first != text.end();) {
    const auto last = std::find_if_not(first, text.end(), isPart);
    places.emplace_back(first, last);
    first = std::find_if(last, text.end(), isPart);
  }
  std::erase_if(places, [](const std::string& place) { return place.find(',') == place.npos; });
  return places;
}

// "Cntrlr4LogicalDrv2" of an array without a letter, whose identifier is "ZentraxisCntrlr4LogicalDrv2 0,2 0,3".
std::string DriveOfArray(const TPublishedInstance& array) {
  const std::string identifier = PublishedText(array, "CollectionID");
  const std::size_t begin = identifier.find("Cntrlr");
  return begin == identifier.npos ? "" : identifier.substr(begin, identifier.find(' ', begin) - begin);
}

// The drives that an array without a letter may stand for.
using DrivesByName = std::multimap<std::string, const TPublishedInstance*>;

DrivesByName LogicalDrives(const InstanceList& instances) {
  DrivesByName drives;
  for (const auto& instance : instances) {
    if (instance->Class().name != kLogicalDisk) continue;
    drives.emplace("Cntrlr" + PublishedText(*instance, "ControllerNum") + "LogicalDrv" +
                       PublishedText(*instance, "LogicalDriveNum"),
                   instance.get());
  }
  return drives;
}

// An array without a letter is of the utility whose drive has the same disks.
std::string_view ToolOfArray(const TPublishedInstance& array, const DrivesByName& drives) {
  const std::vector<std::string> places = PlacesIn(PublishedText(array, "StripeOrder"));
  const auto [first, last] = drives.equal_range(DriveOfArray(array));
  const auto drive = std::find_if(first, last, [&places](const auto& each) {
    return places == PlacesIn(PublishedText(*each.second, "StripeOrder")) ||
           places == PlacesIn(PublishedText(*each.second, "DriveList"));
  });
  return drive == last ? std::string_view() : ToolOf(*drive->second);
}

// A device with its number and the utility that described it; the number is empty of what is no device.
struct Owned {
  std::string number;
  std::string_view tool;
};

std::vector<Owned> FindOwners(const InstanceList& instances) {
  constexpr std::string_view kDevices[] = {kController, kLogicalDisk, kDiskGroup, kDiskDrive};
  const DrivesByName drives = LogicalDrives(instances);
  std::vector<Owned> owners;
  for (const auto& instance : instances) {
    if (std::ranges::find(kDevices, instance->Class().name) == std::end(kDevices)) {
      owners.emplace_back();
      continue;
    }
    std::string_view tool = ToolOf(*instance);
    if (tool.empty() && instance->Class().name == kDiskGroup) tool = ToolOfArray(*instance, drives);
    owners.push_back({PublishedText(*instance, "ControllerNum"), tool});
  }
  return owners;
}

}  // namespace

std::vector<std::string> DeviceOwners(const InstanceList& instances) {
  const std::vector<Owned> owners = FindOwners(instances);
  std::map<std::string, std::set<std::string_view>> tools;
  for (const Owned& owner : owners) {
    if (!owner.tool.empty()) tools[owner.number].insert(owner.tool);
  }
  std::vector<std::string> texts;
  for (const Owned& owner : owners) {
    texts.push_back(owner.number);
    if (tools[owner.number].size() < 2 || owner.number.empty()) continue;
    texts.back() += " (" + std::string(owner.tool.empty() ? "tool not known" : owner.tool) + ")";
  }
  return texts;
}

}  // namespace hxahost
