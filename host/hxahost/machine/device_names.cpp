#include "host/hxahost/machine/device_names.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include <fmt/core.h>

#include "host/hxahost/machine/state_words.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

namespace {

std::string InParentheses(const std::string& text) { return text.empty() ? "" : fmt::format(" ({})", text); }

// "3 (arcconf)" and a model share one pair of parentheses: "3 (arcconf, Zentraxis C6-e)".
std::string ControllerName(const TPublishedInstance& controller, const std::string& owner) {
  const std::string model = RawText(controller, "ControllerType");
  if (!owner.ends_with(')') || model.empty()) return fmt::format("controller {}{}", owner, InParentheses(model));
  return fmt::format("controller {}, {})", owner.substr(0, owner.size() - 1), model);
}

std::string LogicalDriveName(const TPublishedInstance& drive, const std::string& owner) {
  return fmt::format("logical drive {}{} of controller {}", RawText(drive, "LogicalDriveNum"),
                     InParentheses(RawText(drive, "LogicalDriveName")), owner);
}

// "Device #4" of one utility is "4" of the other.
std::string DeviceNumber(const TPublishedInstance& device) {
  const std::string number = RawText(device, "DeviceNumber");
  return number.substr(std::min(number.size(), number.rfind('#') + 1));
}

// One utility reports the place of a device as one text.
std::string Place(const TPublishedInstance& device) {
  const std::string id = RawText(device, "ScsiId");
  const std::string reported = RawText(device, "ReportedChannel");
  if (!id.empty()) return fmt::format("channel {}, ID {}", RawText(device, "Channel"), id);
  return reported.empty() ? "number " + DeviceNumber(device) : "channel,ID " + reported;
}

std::string DeviceName(const TPublishedInstance& device, const std::string& owner) {
  const std::string type = RawText(device, "DeviceType");
  return fmt::format("{} at {} of controller {}", type.empty() ? "device" : type, Place(device), owner);
}

std::string CountersName(const TPublishedInstance& counters, const std::string& owner) {
  return fmt::format("device at {} of controller {}", Place(counters), owner);
}

std::string BadStripesName(const TPublishedInstance& stripes, const std::string& owner) {
  return fmt::format("logical drive {} of controller {}", RawText(stripes, "LogicalDrive"), owner);
}

struct Naming {
  std::string_view className;
  std::string_view identifier;
  std::string (*name)(const TPublishedInstance& instance, const std::string& owner);
};

constexpr Naming kNamings[] = {
    {kControllerClass,   "DeviceID",   ControllerName  },
    {kLogicalDiskClass,  "DeviceID",   LogicalDriveName},
    {kDiskDriveClass,    "DeviceID",   DeviceName      },
    {kBadStripesClass,   "InstanceID", BadStripesName  },
    {kDeviceErrorsClass, "InstanceID", CountersName    },
    {kTransferClass,     "InstanceID", CountersName    },
};

const Naming* FindNaming(const TPublishedInstance& instance) {
  const auto* const naming = std::ranges::find(kNamings, instance.Class().name, &Naming::className);
  return naming == std::end(kNamings) ? nullptr : naming;
}

}  // namespace

std::string IdentifierOf(const TPublishedInstance& instance) {
  const Naming* const naming = FindNaming(instance);
  return naming == nullptr ? "" : RawText(instance, naming->identifier);
}

std::string LocationOf(const TPublishedInstance& device, const std::string& channel, const std::string& id) {
  const std::string slot = RawText(device, "ReportedLocation");
  if (!slot.empty()) return NormalWord(slot);
  if (!id.empty()) return fmt::format("channel {}, ID {}", channel, id);
  const std::string number = DeviceNumber(device);
  return number.empty() ? "" : "device " + number;
}

std::string NameOf(const TPublishedInstance& instance, const std::string& owner) {
  const Naming* const naming = FindNaming(instance);
  if (naming == nullptr) return "";
  return naming->name(instance, owner.empty() ? RawText(instance, "ControllerNum") : owner);
}

}  // namespace hxahost
