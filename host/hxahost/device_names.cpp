#include "host/hxahost/device_names.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "host/hxahost/published_text.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

std::string InParentheses(const std::string& text) { return text.empty() ? "" : " (" + text + ")"; }

std::string OfController(const TPublishedInstance& instance) {
  return " of controller " + PublishedText(instance, "ControllerNum");
}

std::string ControllerName(const TPublishedInstance& controller) {
  return "controller " + PublishedText(controller, "ControllerNum") +
         InParentheses(PublishedText(controller, "ControllerType"));
}

std::string LogicalDriveName(const TPublishedInstance& drive) {
  return "logical drive " + PublishedText(drive, "LogicalDriveNum") +
         InParentheses(PublishedText(drive, "LogicalDriveName")) + OfController(drive);
}

// "Device #4" of one utility is "4" of the other.
std::string DeviceNumber(const TPublishedInstance& device) {
  const std::string number = PublishedText(device, "DeviceNumber");
  return number.substr(std::min(number.size(), number.rfind('#') + 1));
}

// One utility reports the place of a device without telling its parts.
std::string Place(const TPublishedInstance& device) {
  const std::string id = PublishedText(device, "ScsiId");
  const std::string reported = PublishedText(device, "ReportedChannel");
  if (!id.empty()) return "channel " + PublishedText(device, "Channel") + ", ID " + id;
  return reported.empty() ? "number " + DeviceNumber(device) : "channel,ID " + reported;
}

std::string DeviceName(const TPublishedInstance& device) {
  const std::string type = PublishedText(device, "DeviceType");
  return (type.empty() ? "device" : type) + " at " + Place(device) + OfController(device);
}

std::string CountersName(const TPublishedInstance& counters) {
  return "device at " + Place(counters) + OfController(counters);
}

std::string BadStripesName(const TPublishedInstance& stripes) {
  return "logical drive " + PublishedText(stripes, "LogicalDrive") + OfController(stripes);
}

struct Naming {
  std::string_view className;
  std::string_view identifier;
  std::string (*name)(const TPublishedInstance&);
};

constexpr Naming kNamings[] = {
    {"KVRSG_zxSCSIProtocolController", "DeviceID",   ControllerName  },
    {"KVRSG_zxLogicalDisk",            "DeviceID",   LogicalDriveName},
    {"KVRSG_zxDiskDrive",              "DeviceID",   DeviceName      },
    {"KVRSG_BadStripeData",            "InstanceID", BadStripesName  },
    {"KVRSG_zxSCSIDeviceData",         "InstanceID", CountersName    },
};

const Naming* FindNaming(const TPublishedInstance& instance) {
  const auto* const naming = std::ranges::find(kNamings, instance.Class().name, &Naming::className);
  return naming == std::end(kNamings) ? nullptr : naming;
}

}  // namespace

std::string IdentifierOf(const TPublishedInstance& instance) {
  const Naming* const naming = FindNaming(instance);
  return naming == nullptr ? "" : PublishedText(instance, naming->identifier);
}

std::string NameOf(const TPublishedInstance& instance) {
  const Naming* const naming = FindNaming(instance);
  return naming == nullptr ? "" : naming->name(instance);
}

}  // namespace hxahost
