#pragma once

#include "collect/label_table.h"
#include "collect/model_table.h"
#include "collect/shared_labels.h"

// What arcconf prints, and the fields that it feeds.
namespace arcconf {

// The tool prints the maker's names of older models; the C models are written with a blank, the others with a hyphen.
constexpr ModelName kModels[] = {
    {"C4",                "Zentraxis C4"  },
    {"C6-e",              "Zentraxis C6-e"}, // before "C6", which it contains
    {"C6",                "Zentraxis C6"  },
    {"KVR Tolvar NEBULA", "Zentraxis C6"  },
    {"C5",                "Zentraxis C5"  },
    {"Tolvar 4800X",      "Zentraxis C5"  },
    {"B3",                "Zentraxis-B3"  },
    {"Tolvar 2400T",      "Zentraxis-B3"  },
    {"A2",                "Zentraxis-A2"  },
};

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
constexpr Section kControllerPlace = {kControllerHeading, "Controller Version Information"};
constexpr LabelledField<ZenxController> kControllerSection[] = {
    {"Temperature", &ZenxController::ControllerTemp},
};
constexpr Section kBatteryPlace = {"Controller Battery Information", "Controller Vital Product Data"};
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

constexpr AnswerLabels kLabels[] = {
    {kControllerType,       kGetConfig, Extent::kWhole, {}              },
    {kController,           kGetConfig, Extent::kWhole, {}              },
    {kControllerSection,    kGetConfig, Extent::kWhole, kControllerPlace},
    {kBatterySection,       kGetConfig, Extent::kWhole, kBatteryPlace   },
    {kLogicalDriveNumber,   kGetConfig, Extent::kWords, {}              },
    {kLogicalDrive,         kGetConfig, Extent::kWhole, {}              },
    {kStripeOrder,          kGetConfig, Extent::kWhole, {}              },
    {kDevice,               kGetConfig, Extent::kWords, {}              },
    {kUnknown,              kGetConfig, Extent::kWhole, {}              },
    {kEnclosure,            kGetConfig, Extent::kWhole, {}              },
    {kEnclosureStatus,      kGetConfig, Extent::kWhole, {}              },
    {kHardDriveState,       kGetConfig, Extent::kWhole, {}              },
    {kAssignedSpare,        kGetConfig, Extent::kWhole, {}              },
    {kHardDrive,            kGetConfig, Extent::kWhole, {}              },
    {kSplitReportedChannel, kGetConfig, Extent::kWords, {}              },
};

}  // namespace arcconf
