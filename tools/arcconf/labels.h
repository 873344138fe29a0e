#pragma once

#include "collect/label_table.h"
#include "collect/shared_labels.h"

// What arcconf prints, and the fields that it feeds.
namespace arcconf {

// A model wins over a type.
constexpr LabelledField<ZenxController> kModel = {"Controller Model", &ZenxController::ControllerType};
constexpr LabelledField<ZenxController> kType = {"Controller type", &ZenxController::ControllerType};
constexpr LabelledField<ZenxController> kControllerType[] = {kModel, kType};

// Each is taken from the first line of the report that contains it.
constexpr LabelledField<ZenxController> kController[] = {
    {"Controller Status",               &ZenxController::ControllerStatus         },
    {"Channel description",             &ZenxController::ChannelDescription       },
    {"Controller Serial Number",        &ZenxController::SerialNum                },
    {"Physical Slot",                   &ZenxController::ControllerSlotInfo       },
    {"Installed memory",                &ZenxController::InstalledMemory          },
    {"Copyback",                        &ZenxController::CopyBackEnabled          },
    {"Data scrubbing",                  &ZenxController::DataScrubbing            },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt      },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt    },
    {"BIOS",                            &ZenxController::BiosVersion              },
    {"Firmware",                        &ZenxController::FirmwareVersion          },
    {"Driver",                          &ZenxController::DeviceDriverVersion      },
    {"Boot",                            &ZenxController::BootBlockVersion         },
    {"Over temperature",                &ZenxController::ControllerBatteryOverTemp},
    {"Capacity",                        &ZenxController::ControllerBatteryCapacity},
    {"Time remaining",                  &ZenxController::BatteryTimeRemaining     },
    {"VPD Assigned#",                   &ZenxController::VPD                      },
    {"EC Version#",                     &ZenxController::ECVersion                },
    {"Controller FRU#",                 &ZenxController::ControllerFRU            },
    {"Battery FRU#",                    &ZenxController::ControllerBatteryFRU     },
};

// Temperature and status are printed of other things too (drives, enclosures, batteries), so they are taken from their
// sections.
constexpr LabelledField<ZenxController> kControllerSection[] = {
    {"Temperature", &ZenxController::ControllerTemp},
};
constexpr LabelledField<ZenxController> kBatterySection[] = {
    {"Status", &ZenxController::ControllerBatteryStatus},
};

constexpr LabelledField<ZenxLogicalDevice> kLogicalDriveNumber[] = {
    {kLogicalDriveHead, &ZenxLogicalDevice::LogicalDriveNum},
};

// In the order in which the tool prints them. A stripe order printed after the defunct segments is no field of the
// drive: it is left to the reader of stripe orders.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Logical drive name",      &ZenxLogicalDevice::LogicalDriveName  },
    {"RAID level",              &ZenxLogicalDevice::RaidLevel         },
    {"Status of logical drive", &ZenxLogicalDevice::LogicalDriveStatus},
    {"Status of RAID 5EE",      &ZenxLogicalDevice::Raid5EEStatus     },
    {"Size",                    &ZenxLogicalDevice::Size              },
    {"Read-cache mode",         &ZenxLogicalDevice::ReadCacheStatus   },
    {"Write-cache mode",        &ZenxLogicalDevice::WriteCacheStatus  },
    {"Write-cache setting",     &ZenxLogicalDevice::WriteCacheSetting },
    {"Partitioned",             &ZenxLogicalDevice::Partitioned       },
    {"Number of segments",      &ZenxLogicalDevice::NumOfSegments     },
    {"Stripe-unit size",        &ZenxLogicalDevice::StripeUnitSize    },
    {"Drive(s)",                &ZenxLogicalDevice::DriveList         },
    {"Stripe order",            &ZenxLogicalDevice::StripeOrder       },
    {"Defunct segments",        &ZenxLogicalDevice::DefunctSegments   },
    {"Defunct stripes",         &ZenxLogicalDevice::DefunctStripes    },
};

constexpr LabelledField<ArrayStripeOrder> kStripeOrder[] = {
    {kStripeOrderLabel, &ArrayStripeOrder::StripeOrder},
};

using Device = ZenxPhysicalDevice;

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
    {"Enclosure ID",     &Device::EnclosureId    },
    {"Type",             &Device::Type           },
    {"Vendor",           &Device::Vendor         },
    {"Model",            &Device::Model          },
    {"Firmware",         &Device::Firmware       },
};

constexpr LabelledField<Device> kEnclosureStatus[] = {
    {"Temperature", &Device::Temperature},
};

constexpr LabelledField<Device> kHardDriveState[] = {
    {"State", &Device::State},
};

// "State : Hot Spare" and below it "Assigned Spare for : Logical drive 1" are one state.
constexpr LabelledField<Device> kAssignedSpare[] = {
    {"Assigned Spare for", &Device::State},
};

constexpr LabelledField<Device> kHardDrive[] = {
    {"Supported",          &Device::Supported       },
    {"Transfer Speed",     &Device::TransferSpeed   },
    {"Reported Channel",   &Device::ReportedChannel },
    {"Reported Enclosure", &Device::Enclosure       },
    {"Reported Location",  &Device::ReportedLocation},
    {"Reported ESD",       &Device::ReportedESD     },
    {"Vendor",             &Device::Vendor          },
    {"Model",              &Device::Model           },
    {"Firmware",           &Device::Firmware        },
    {"Serial",             &Device::DeviceSerialNum },
    {"World-wide name",    &Device::WorldWideName   },
    {"Size",               &Device::Size            },
    {"Write Cache",        &Device::WriteCache      },
    {"FRU",                &Device::FRU             },
    {"PFA",                &Device::PFA             },
};

// "0,3" is split at its comma.
constexpr LabelledField<Device> kSplitReportedChannel[] = {
    {"Reported Channel", &Device::Channel},
    {"Reported Channel", &Device::ScsiId },
};

constexpr AnyLabelTable kLabels[] = {
    kControllerType,
    kController,
    kControllerSection,
    kBatterySection,
    kLogicalDriveNumber,
    kLogicalDrive,
    kStripeOrder,
    kDevice,
    kUnknown,
    kEnclosure,
    kEnclosureStatus,
    kHardDriveState,
    kAssignedSpare,
    kHardDrive,
    kSplitReportedChannel,
};

}  // namespace arcconf
