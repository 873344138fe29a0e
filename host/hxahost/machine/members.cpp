#include "host/hxahost/machine/members.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <set>

#include "host/hxahost/result/property_values.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

using PlacesByKey = std::multimap<std::string, std::size_t>;

std::vector<std::size_t> Found(const PlacesByKey& places, const std::vector<std::string>& keys) {
  std::set<std::size_t> found;
  for (const std::string& key : keys) {
    const auto [first, last] = places.equal_range(key);
    for (auto each = first; each != last; ++each) found.insert(each->second);
  }
  return {found.begin(), found.end()};
}

PlacesByKey DevicesByPlace(const std::vector<Device>& devices) {
  PlacesByKey places;
  for (std::size_t index = 0; index < devices.size(); ++index) {
    places.emplace(devices[index].channel + "," + devices[index].id, index);
  }
  return places;
}

// A drive's own list and its groups may both name a device.
std::vector<std::size_t> AllMembers(const Controller& controller, const LogicalDrive& drive) {
  std::set<std::size_t> members(drive.devices.begin(), drive.devices.end());
  for (const std::size_t group : drive.groups) {
    members.insert(controller.groups[group].devices.begin(), controller.groups[group].devices.end());
  }
  return {members.begin(), members.end()};
}

}  // namespace

void FindMembers(Controller& controller, const InstanceList& instances) {
  const PlacesByKey devices = DevicesByPlace(controller.devices);
  PlacesByKey groups;  // by letter, or by the logical drive of a group without a letter
  for (std::size_t index = 0; index < controller.groups.size(); ++index) {
    DiskGroup& group = controller.groups[index];
    const TPublishedInstance& instance = *instances[group.instance];
    const std::string letter = RawText(instance, "Array");
    groups.emplace(letter.empty() ? DriveKeyOf(instance) : letter, index);
    group.devices = Found(devices, PlacesIn(RawText(instance, "StripeOrder")));
  }
  for (std::size_t index = 0; index < controller.logicalDrives.size(); ++index) {
    LogicalDrive& drive = controller.logicalDrives[index];
    const TPublishedInstance& instance = *instances[drive.instance];
    std::vector<std::string> keys = {DriveKey(controller.number, drive.number)};
    if (const std::string letter = RawText(instance, "PartOfArray"); !letter.empty()) keys.push_back(letter);
    drive.groups = Found(groups, keys);
    drive.devices = Found(devices, PlacesIn(RawText(instance, "StripeOrder") + " " + RawText(instance, "DriveList")));
    drive.members = AllMembers(controller, drive);
    for (const std::size_t member : drive.members) controller.devices[member].logicalDrives.push_back(index);
  }
}

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

std::string DriveKey(const std::string& controller, const std::string& drive) {
  return "Cntrlr" + controller + "LogicalDrv" + drive;
}

std::string DriveKeyOf(const TPublishedInstance& group) {
  const std::string identifier = RawText(group, "CollectionID");
  const std::size_t begin = identifier.find("Cntrlr");
  return begin == identifier.npos ? "" : identifier.substr(begin, identifier.find(' ', begin) - begin);
}

}  // namespace hxahost
