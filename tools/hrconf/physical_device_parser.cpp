#include "tools/hrconf/physical_device_parser.h"

#include "collect/ascii_text.h"
#include "collect/end_of_text.h"
#include "collect/labelled_fields.h"
#include "collect/tool_text.h"

namespace hrconf {
namespace {

using Device = ZenxPhysicalDevice;

constexpr LabelledField<Device> kUnknown[] = {
    {"State",            &Device::State          },
    {"Reported Channel", &Device::ReportedChannel},
    {"Vendor",           &Device::Vendor         },
    {"Model",            &Device::Model          },
    {"Firmware",         &Device::Firmware       },
};

constexpr LabelledField<Device> kEnclosure[] = {
    {"State",            &Device::State          },
    {"Transfer Speed",   &Device::TransferSpeed  },
    {"Reported Channel", &Device::ReportedChannel},
    {"Vendor",           &Device::Vendor         },
    {"Model",            &Device::Model          },
    {"Firmware",         &Device::Firmware       },
};

constexpr LabelledField<Device> kHardDrive[] = {
    {"State",              &Device::State          },
    {"Supported",          &Device::Supported      },
    {"Transfer Speed",     &Device::TransferSpeed  },
    {"Reported Channel",   &Device::ReportedChannel},
    {"Reported Enclosure", &Device::Enclosure      },
    {"Vendor",             &Device::Vendor         },
    {"Model",              &Device::Model          },
    {"Firmware",           &Device::Firmware       },
    {"Serial number",      &Device::DeviceSerialNum},
    {"World-wide name",    &Device::WorldWideName  },
    {"Size",               &Device::Size           },
    {"Write Cache",        &Device::WriteCache     },
    {"FRU",                &Device::FRU            },
    {"PFA",                &Device::PFA            },
};

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
  // Channel and device name stand together without a separator: "Controller: 0Device #1".
  device.DeviceIdSuffix.append("Controller: ").append(channel).append(deviceName);
}

}  // namespace hrconf
