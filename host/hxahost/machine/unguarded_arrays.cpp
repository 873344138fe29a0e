#include "host/hxahost/machine/unguarded_arrays.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string_view>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

using Text = std::string;

// "0,7 0,8" names disks by channel and number.
void AddDisks(std::set<Text>& disks, const Text& controller, const Text& list) {
  std::istringstream entries(list);
  for (Text entry; entries >> entry;) disks.insert(controller + " " + entry);
}

// Stripe orders by the array that they are of: controller, blank, letter.
std::map<Text, Text> StripeOrders(const InstanceList& all) {
  std::map<Text, Text> orders;
  for (const auto& group : all) {
    if (group->Class().name != kDiskGroupClass) continue;
    const Text array = RawText(*group, "Array");
    if (array.empty()) continue;
    orders[RawText(*group, "ControllerNum") + " " + array] += " " + RawText(*group, "StripeOrder");
  }
  return orders;
}

void AddDisksOf(std::set<Text>& disks, const TPublishedInstance& drive, const std::map<Text, Text>& orders) {
  const Text controller = RawText(drive, "ControllerNum");
  AddDisks(disks, controller, RawText(drive, "DriveList"));
  const auto order = orders.find(controller + " " + RawText(drive, "PartOfArray"));
  if (order != orders.end()) AddDisks(disks, controller, order->second);
}

}  // namespace

UnguardedArrays::UnguardedArrays(const InstanceList& unguarded, const InstanceList& all) {
  const auto orders = StripeOrders(all);
  for (const auto& drive : unguarded) {
    controllers_.insert(RawText(*drive, "ControllerNum"));
    AddDisksOf(unguarded_, *drive, orders);
  }
  for (const auto& drive : all) {
    if (drive->Class().name == kLogicalDiskClass) AddDisksOf(placed_, *drive, orders);
  }
}

namespace {

// One utility gives channel and number together alone.
Text PlaceOf(const TPublishedInstance& disk) {
  const Text id = RawText(disk, "ScsiId");
  return id.empty() ? RawText(disk, "ReportedChannel") : RawText(disk, "Channel") + "," + id;
}

}  // namespace

bool UnguardedArrays::Has(const TPublishedInstance& disk) const {
  const Text controller = RawText(disk, "ControllerNum");
  const Text place = controller + " " + PlaceOf(disk);
  return placed_.contains(place) ? unguarded_.contains(place) : controllers_.contains(controller);
}

}  // namespace hxahost
