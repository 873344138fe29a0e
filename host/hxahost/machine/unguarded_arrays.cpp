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

// The disks of the logical drives. The stripe order of an array counts once, however many drives lie on it.
std::set<Text> DisksOf(const InstanceList& instances, const std::map<Text, Text>& orders) {
  std::set<Text> disks;
  std::set<Text> arrays;
  for (const auto& drive : instances) {
    if (drive->Class().name != kLogicalDiskClass) continue;
    const Text controller = RawText(*drive, "ControllerNum");
    AddDisks(disks, controller, RawText(*drive, "DriveList"));
    const Text array = controller + " " + RawText(*drive, "PartOfArray");
    const auto order = orders.find(array);
    if (order != orders.end() && arrays.insert(array).second) AddDisks(disks, controller, order->second);
  }
  return disks;
}

}  // namespace

UnguardedArrays::UnguardedArrays(const InstanceList& unguarded, const InstanceList& all) {
  const auto orders = StripeOrders(all);
  for (const auto& drive : unguarded) controllers_.insert(RawText(*drive, "ControllerNum"));
  unguarded_ = DisksOf(unguarded, orders);
  placed_ = DisksOf(all, orders);
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
