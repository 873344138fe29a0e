#pragma once

#include "collect/label_table.h"
#include "collect/model_table.h"
#include "collect/shared_labels.h"
#include "logs/labels.h"
#include "tools/qcmdrun/commands.h"

// What qcmdrun prints, and the fields that it feeds.
namespace qcmdrun {

// The first hit wins: "C6-e" comes before "C6", which it contains. The two oldest models are written with a hyphen.
constexpr ModelName kModels[] = {
    {"C4",   "Zentraxis C4"  },
    {"C6-e", "Zentraxis C6-e"},
    {"C6",   "Zentraxis C6"  },
    {"C5",   "Zentraxis C5"  },
    {"B3",   "Zentraxis-B3"  },
    {"A2",   "Zentraxis-A2"  },
};

// A label's first occurrence anywhere in the answer counts, also one in a later section: a utility that leaves a line
// out of the controller's section so has the value taken from there.
constexpr LabelledField<ZenxController> kController[] = {
    {"Controller type",                 &ZenxController::ControllerType             },
    {"Controller FRU",                  &ZenxController::ControllerFRU              },
    {"Controller Serial Number",        &ZenxController::SerialNum                  },
    {"Part number",                     &ZenxController::PartNum                    },
    {"Actual BIOS version",             &ZenxController::BiosVersion                },
    {"Firmware version",                &ZenxController::FirmwareVersion            },
    {"Boot block version",              &ZenxController::BootBlockVersion           },
    {"Device driver version",           &ZenxController::DeviceDriverVersion        },
    {"Cluster solution",                &ZenxController::ClusterSolutionVersion     },
    {"Controller slot information",     &ZenxController::ControllerSlotInfo         },
    {"Controller name",                 &ZenxController::ControllerName             },
    {"SCSI channel description",        &ZenxController::ScsiChannelDescr           },
 // Without its closing parenthesis, so that a line that has more inside the parentheses is found too.
    {"Initiator IDs (Channel/SCSI ID",  &ZenxController::InitiatorChannelScsiId     },
    {"Maximum physical devices",        &ZenxController::MaxPhysicalDevices         },
    {"Defunct disk drive count",        &ZenxController::DefunctDiskDriveCnt        },
    {"Logical drives/Offline/Critical", &ZenxController::LogicalDriveStatusCnt      },
    {"Readahead cache setting",         &ZenxController::ReadAhead                  },
    {"Stripe-unit size",                &ZenxController::StripeUnitSize             },
    {"Rebuild rate (Low/Medium/High)",  &ZenxController::RebuildRate                },
    {"Hot-swap rebuild",                &ZenxController::HotSwapRebuild             },
    {"Data scrubbing",                  &ZenxController::DataScrubbing              },
    {"Hot-spare",                       &ZenxController::HotSpareCopyBack           },
    {"Part of cluster (Yes/No)",        &ZenxController::PartOfCluster              },
    {"Unattended mode (Yes/No)",        &ZenxController::UnattendedMode             },
    {"Concurrent commands supported",   &ZenxController::ConcurrentCommandsSupported},
    {"Configuration update count",      &ZenxController::ConfigurationUpdateCount   },
};

// The answer to "getstatus". "Logical drive" and "Status" are parts of other labels too: the first line that contains
// them counts, whichever it is. The utility prints the short labels first.
constexpr LabelledField<ZenxController> kStatus[] = {
    {"Current/most recent operation",   &ZenxController::Current_MostRecentOperation},
    {"Logical drive",                   &ZenxController::Logical_Drive              },
    {"Background operation active",     &ZenxController::BackgroundOperationActive  },
    {"Status",                          &ZenxController::LastCmdStatus              },
    {"Logical drive size (in stripes)", &ZenxController::LogicalDriveSizeInStripes  },
    {"Number of remaining stripes",     &ZenxController::NumberOfRemainingStripes   },
};

constexpr LabelledField<ZenxLogicalDevice> kLogicalDriveNumber[] = {
    {kLogicalDriveHead, &ZenxLogicalDevice::LogicalDriveNum},
};

// Two lines are printed only where there is something to say; all others are always there, and each counts as read
// whatever it holds.
constexpr LabelledField<ZenxLogicalDevice> kLogicalDrive[] = {
    {"Status of logical drive", &ZenxLogicalDevice::LogicalDriveStatus,    Miss::kTakesLine   },
    {"Additional information",  &ZenxLogicalDevice::AdditionalInformation, Miss::kCostsNothing},
    {"RAID level",              &ZenxLogicalDevice::RaidLevel,             Miss::kTakesLine   },
    {"Size (in MB)",            &ZenxLogicalDevice::Size,                  Miss::kTakesLine   },
    {"Write cache status",      &ZenxLogicalDevice::WriteCacheStatus,      Miss::kTakesLine   },
    {"Number of chunks",        &ZenxLogicalDevice::NumOfChunks,           Miss::kTakesLine   },
    {"Stripe-unit size",        &ZenxLogicalDevice::StripeUnitSize,        Miss::kTakesLine   },
    {"Access blocked",          &ZenxLogicalDevice::AccessBlocked,         Miss::kTakesLine   },
    {"Part of array",           &ZenxLogicalDevice::PartOfArray,           Miss::kTakesLine   },
    {"Part of merge group",     &ZenxLogicalDevice::PartOfMergeGroup,      Miss::kCostsNothing},
};

// After the array's letter.
constexpr std::string_view kArrayLabel = " stripe order (Channel/SCSI ID)";
constexpr LabelledField<ArrayStripeOrder> kArray[] = {
    {kArrayLabel, &ArrayStripeOrder::Array},
};
constexpr LabelledField<ArrayStripeOrder> kStripeOrder[] = {
    {kArrayLabel, &ArrayStripeOrder::StripeOrder},
};

using Device = ZenxPhysicalDevice;

// Begins the line that begins a device.
constexpr std::string_view kTargetLabel = "Target";

constexpr LabelledField<Device> kChannelHeading[] = {
    {"Channel", &Device::Channel},
};

constexpr LabelledField<Device> kDeviceType[] = {
    {kDeviceTypeLabel, &Device::DeviceType},
};

// Tapes and processors print only some of these lines.
constexpr std::string_view kIdentifierLabel = "Device ID";
constexpr LabelledField<Device> kDevice[] = {
    {"SCSI ID",                   &Device::ScsiId        },
    {"PFA (Yes/No)",              &Device::PFA           },
    {"State",                     &Device::State         },
    {"Size (in MB)/(in sectors)", &Device::Size          },
    {kIdentifierLabel,            &Device::DeviceIdSuffix},
};

constexpr LabelledField<Device> kReplacementPart[] = {
    {"FRU part number", &Device::FRU},
};

// What is cut out of the identifier.
constexpr LabelledField<Device> kIdentifierPieces[] = {
    {kIdentifierLabel, &Device::Model          },
    {kIdentifierLabel, &Device::DeviceCode     },
    {kIdentifierLabel, &Device::Firmware       },
    {kIdentifierLabel, &Device::DeviceSerialNum},
};

constexpr AnswerLabels kLabels[] = {
    {kController,         kGetConfig,     Extent::kWhole,   {}},
    {kStatus,             kGetStatus,     Extent::kWhole,   {}},
    {kLogicalDriveNumber, kGetConfig,     Extent::kWords,   {}},
    {kLogicalDrive,       kGetConfig,     Extent::kWhole,   {}},
    {kArray,              kGetConfig,     Extent::kWords,   {}},
    {kStripeOrder,        kGetConfig,     Extent::kWhole,   {}},
    {kChannelHeading,     kGetConfig,     Extent::kHeading, {}},
    {kDeviceType,         kGetConfig,     Extent::kWords,   {}},
    {kDevice,             kGetConfig,     Extent::kWhole,   {}},
    {kReplacementPart,    kGetConfig,     Extent::kWhole,   {}},
    {kIdentifierPieces,   kGetConfig,     Extent::kCut,     {}},
    {kBadStripeLabels,    kGetBadStripes, Extent::kWords,   {}},
    {kSubStatLabels,      kGetSubStats,   Extent::kWords,   {}},
    {kSoftLogLabels,      kGetSoftEvents, Extent::kWhole,   {}},
    {kHardLogLabels,      kGetHardEvents, Extent::kWhole,   {}},
};

}  // namespace qcmdrun
