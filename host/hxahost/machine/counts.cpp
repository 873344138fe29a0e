#include "host/hxahost/machine/counts.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/tool_names.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

std::string KeyOf(std::string_view controller, std::string_view channel, std::string_view id) {
  return std::string(controller) + "/" + std::string(channel) + "," + std::string(id);
}

// By the number of the controller and the place of the device.
std::map<std::string, ErrorCounts> Errors(const InstanceList& instances) {
  std::map<std::string, ErrorCounts> errors;
  for (const auto& instance : instances) {
    if (instance->Class().name != kDeviceErrorsClass) continue;
    const auto count = [&](std::string_view property) { return ReadCount(RawText(*instance, property)).value_or(0); };
    errors[KeyOf(RawText(*instance, "ControllerNum"), RawText(*instance, "Channel"), RawText(*instance, "ScsiId"))] = {
        count("NumHardErrors"), count("NumSoftErrors"), count("NumParityErrors"), count("Misc")};
  }
  return errors;
}

// The smallest and largest count of each logical drive, by its number and its controller's number.
struct StripeCounts {
  std::uint64_t least = 0;
  std::uint64_t largest = 0;
};

std::map<std::string, StripeCounts> BadStripes(const InstanceList& instances) {
  std::map<std::string, StripeCounts> stripes;
  for (const auto& instance : instances) {
    if (instance->Class().name != kBadStripesClass) continue;
    const auto count = ReadCount(RawText(*instance, "NumBadStripes"));
    if (!count) continue;
    const std::string key = KeyOf(RawText(*instance, "ControllerNum"), "", RawText(*instance, "LogicalDrive"));
    StripeCounts& counts = stripes.emplace(key, StripeCounts{*count, *count}).first->second;
    counts = {std::min(counts.least, *count), std::max(counts.largest, *count)};
  }
  return stripes;
}

// Counts contain only the number of their controller. The legacy utility counts errors and bad stripes; for drives of
// the other utilities 0 is published.
bool IsCounting(const std::vector<Controller>& controllers, const Controller& controller) {
  if (controller.tool == kQcmdrun) return true;
  for (const Controller& other : controllers) {
    if (other.number == controller.number && other.tool == kQcmdrun) return false;
  }
  return true;
}

}  // namespace

void FindCounts(std::vector<Controller>& controllers, const InstanceList& instances) {
  const auto errors = Errors(instances);
  const auto stripes = BadStripes(instances);
  for (Controller& controller : controllers) {
    const bool isCounting = IsCounting(controllers, controller);
    for (Device& device : controller.devices) {
      const auto found = errors.find(KeyOf(controller.number, device.channel, device.id));
      if (isCounting && found != errors.end()) device.errors = found->second;
    }
    for (LogicalDrive& drive : controller.logicalDrives) {
      const auto found = stripes.find(KeyOf(controller.number, "", drive.number));
      if (found == stripes.end()) continue;
      drive.badStripes = isCounting ? found->second.largest : found->second.least;
    }
  }
}

}  // namespace hxahost
