#include "tools/hrconf/physical_device_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"
#include "collect/tool_text.h"
#include "tools/hrconf/labels.h"

namespace hrconf {
namespace {

struct Branch {
  std::string_view type;
  LabelTable<Device> lines;
};

// The first whose type is in the device's counts. Of other devices the type is all that is taken.
constexpr Branch kBranches[] = {
    {"Unknown",    kUnknown  },
    {"Enclosure",  kEnclosure},
    {"Hard drive", kHardDrive},
};

void ReadDevice(Device& device, CollectedData& text) {
  device.DeviceType = CutDeviceType(text.NextLine());
  for (const auto& [type, lines] : kBranches) {
    if (Contains(device.DeviceType, type)) return ReadInOrder(text, device, lines);
  }
}

}  // namespace

void ParsePhysicalDevice(ZenxPhysicalDevice& device, CollectedData& text, std::string_view controllerNumber,
                         std::string_view channel, std::string_view deviceName) {
  device.ControllerNum = controllerNumber;
  device.Channel = channel;
  device.DeviceNumber = deviceName;
  UntilEndOfText([&] { ReadDevice(device, text); });
  // Channel and device name are joined without a separator: "Controller: 0Device #1".
  device.DeviceIdSuffix.append("Controller: ").append(channel).append(deviceName);
}

}  // namespace hrconf
