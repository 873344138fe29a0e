#pragma once

#include "collect/label_table.h"
#include "collect/shared_labels.h"
#include "tools/hrconf/commands.h"

// What hrconf prints, and the fields that it feeds.
namespace hrconf {

constexpr LabelledField<ZenxController> kController[] = {
    {"Boot",                            &ZenxController::BootBlockVersion     },
    {"Controller Status",               &ZenxController::ControllerStatus     },
    {"Channel description",             &ZenxController::ChannelDescription   },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt  },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt},
};

// On the fifth and the sixth line of the answer to "getversion", and nowhere else.
constexpr LabelledField<ZenxHrConfBios> kVersions[] = {
    {"BIOS",   &ZenxHrConfBios::BIOS,   Miss::kTakesLine},
    {"Driver", &ZenxHrConfBios::Driver, Miss::kTakesLine},
};

constexpr LabelledField<ZenxLogicalDevice> kLogicalDriveNumber[] = {
    {kLogicalDriveHead, &ZenxLogicalDevice::LogicalDriveNum},
};

// In the order in which the tool prints them. Size and write cache status come as a pair: without the size, the line of
// the write cache status is used up in its place, and neither is read.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Logical drive name",        &ZenxLogicalDevice::LogicalDriveName,      Miss::kCostsNothing},
    {"RAID level",                &ZenxLogicalDevice::RaidLevel,             Miss::kCostsNothing},
    {"Status of logical drive",   &ZenxLogicalDevice::LogicalDriveStatus,    Miss::kCostsNothing},
    {"Additional information",    &ZenxLogicalDevice::AdditionalInformation, Miss::kCostsNothing},
    {"Size",                      &ZenxLogicalDevice::Size,                  Miss::kTakesLine   },
    {"Write cache status",        &ZenxLogicalDevice::WriteCacheStatus,      Miss::kCostsNothing},
    {"Number of chunks",          &ZenxLogicalDevice::NumOfChunks,           Miss::kCostsNothing},
    {"Stripe-unit size",          &ZenxLogicalDevice::StripeUnitSize,        Miss::kCostsNothing},
    {"Drive(s) (Channel,Device)", &ZenxLogicalDevice::DriveList,             Miss::kCostsNothing},
};

constexpr LabelledField<ArrayStripeOrder> kStripeOrder[] = {
    {kStripeOrderLine, &ArrayStripeOrder::StripeOrder},
};

using Device = ZenxPhysicalDevice;

constexpr std::string_view kChannelLabel = "Channel";

constexpr LabelledField<Device> kChannelHeading[] = {
    {kChannelLabel, &Device::Channel},
};

// The first lines of every device.
constexpr LabelledField<Device> kDevice[] = {
    {kDeviceNumberLabel, &Device::DeviceNumber  },
    {kDeviceNumberLabel, &Device::DeviceIdSuffix},
    {kDeviceTypeLabel,   &Device::DeviceType    },
};

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

constexpr AnswerLabels kLabels[] = {
    {kController,         kGetConfig,  Extent::kWhole,   {}},
    {kVersions,           kGetVersion, Extent::kWhole,   {}},
    {kLogicalDriveNumber, kGetConfig,  Extent::kWords,   {}},
    {kLogicalDrive,       kGetConfig,  Extent::kWhole,   {}},
    {kStripeOrder,        kGetConfig,  Extent::kWhole,   {}},
    {kChannelHeading,     kGetConfig,  Extent::kHeading, {}},
    {kDevice,             kGetConfig,  Extent::kWords,   {}},
    {kUnknown,            kGetConfig,  Extent::kWhole,   {}},
    {kEnclosure,          kGetConfig,  Extent::kWhole,   {}},
    {kHardDrive,          kGetConfig,  Extent::kWhole,   {}},
};

}  // namespace hrconf
