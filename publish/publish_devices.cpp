#include "publish/publish_devices.h"

#include <iterator>

#include <fmt/core.h>

#include "collect/ascii_text.h"
#include "plugin/host_interface/services.h"
#include "publish/identifiers.h"
#include "publish/property_table.h"
#include "publish/publish_common.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kComputerSystem = "KVRSG_ComputerSystem";

std::string MachineName() { return TOSSpecific::GetMachineName(); }

std::string ControllerLabel(const ZenxController& controller) {
  // The leading blank has always been there; programs compare with it.
  return " Controller:" + std::string(Trimmed(controller.ControllerNum));
}

TCIMValue ControllerIdentifyingInfo(const ZenxController& controller) {
  return StringArray({std::string(Trimmed(controller.ControllerType)), ControllerLabel(controller)});
}

TCIMValue DriveIdentifyingInfo(const ZenxController&, const ZenxPhysicalDevice& drive) {
  return StringArray({std::string(Trimmed(drive.DeviceType)),
                      fmt::format("Channel:{}|SCSI ID:{}", Trimmed(drive.Channel), Trimmed(drive.ScsiId))});
}

// Controllers, logical disks and disk drives have always been published with "CreationClassname", with a small n; logs
// have not. Programs read the property under the name that they know.
using Controller = ZenxController;
constexpr Property<Controller> kControllerProperties[] = {
    {"SystemCreationClassName",     kComputerSystem                         },
    {"CreationClassname",           "KVRSG_zxSCSIProtocolController"        },
    {"SystemName",                  MachineName                             },
    {"DeviceID",                    ControllerId                            },
    {"OtherIdentifyingInfo",        ControllerIdentifyingInfo               },
    {"ControllerNum",               &Controller::ControllerNum              },
    {"ControllerType",              &Controller::ControllerType             },
    {"ControllerStatus",            &Controller::ControllerStatus           },
    {"ChannelDescription",          &Controller::ChannelDescription         },
    {"SerialNum",                   &Controller::SerialNum                  },
    {"ControllerSlotInfo",          &Controller::ControllerSlotInfo         },
    {"InstalledMemory",             &Controller::InstalledMemory            },
    {"PartNum",                     &Controller::PartNum                    },
    {"DeviceDriverVersion",         &Controller::DeviceDriverVersion        },
    {"ClusterSolutionVersion",      &Controller::ClusterSolutionVersion     },
    {"CopyBackEnabled",             &Controller::CopyBackEnabled            },
    {"ControllerName",              &Controller::ControllerName             },
    {"ScsiChannelDescr",            &Controller::ScsiChannelDescr           },
    {"InitiatorChannelScsiId",      &Controller::InitiatorChannelScsiId     },
    {"MaxPhysicalDevices",          &Controller::MaxPhysicalDevices         },
    {"DefunctDiskDriveCnt",         &Controller::DefunctDiskDriveCnt        },
    {"LogicalDriveStatusCnt",       &Controller::LogicalDriveStatusCnt      },
    {"ReadAhead",                   &Controller::ReadAhead                  },
    {"StripeUnitSize",              &Controller::StripeUnitSize             },
    {"RebuildRate",                 &Controller::RebuildRate                },
    {"HotSwapRebuild",              &Controller::HotSwapRebuild             },
    {"DataScrubbing",               &Controller::DataScrubbing              },
    {"HotSpareCopyBack",            &Controller::HotSpareCopyBack           },
    {"PartOfCluster",               &Controller::PartOfCluster              },
    {"UnattendedMode",              &Controller::UnattendedMode             },
    {"ConcurrentCommandsSupported", &Controller::ConcurrentCommandsSupported},
    {"ConfigurationUpdateCount",    &Controller::ConfigurationUpdateCount   },
    {"Current_MostRecentOperation", &Controller::Current_MostRecentOperation},
    {"Logical_Drive",               &Controller::Logical_Drive              },
    {"BackgroundOperationActive",   &Controller::BackgroundOperationActive  },
    {"LastCmdStatus",               &Controller::LastCmdStatus              },
    {"LogicalDriveSizeInStripes",   &Controller::LogicalDriveSizeInStripes  },
    {"NumberOfRemainingStripes",    &Controller::NumberOfRemainingStripes   },
    {"VPD",                         &Controller::VPD                        },
    {"ECVersion",                   &Controller::ECVersion                  },
    {"ControllerFRU",               &Controller::ControllerFRU              },
    {"ControllerTemp",              &Controller::ControllerTemp             },
    {"ControllerBatteryStatus",     &Controller::ControllerBatteryStatus    },
    {"ControllerBatteryOverTemp",   &Controller::ControllerBatteryOverTemp  },
    {"ControllerBatteryCapacity",   &Controller::ControllerBatteryCapacity  },
    {"ControllerBatteryFRU",        &Controller::ControllerBatteryFRU       },
    {"BatteryTimeRemaining",        &Controller::BatteryTimeRemaining       },
};
static_assert(std::size(kControllerProperties) == 47);

using Disk = ZenxLogicalDevice;
constexpr Property<Controller, Disk> kLogicalDiskProperties[] = {
    {"DeviceID",                LogicalDiskId             },
    {"SystemCreationClassName", kComputerSystem           },
    {"CreationClassname",       "KVRSG_zxLogicalDisk"     },
    {"SystemName",              MachineName               },
    {"AccessBlocked",           &Disk::AccessBlocked      },
    {"ControllerNum",           &Controller::ControllerNum},
    {"LogicalDriveNum",         &Disk::LogicalDriveNum    },
    {"LogicalDriveStatus",      &Disk::LogicalDriveStatus },
    {"NumOfChunks",             &Disk::NumOfChunks        },
    {"NumOfSegments",           &Disk::NumOfSegments      },
    {"PartOfArray",             &Disk::PartOfArray        },
    {"PartOfMergeGroup",        &Disk::PartOfMergeGroup   },
    {"RaidLevel",               &Disk::RaidLevel          },
    {"Size",                    &Disk::Size               },
    {"StripeUnitSize",          &Disk::StripeUnitSize     },
    {"StripeOrder",             &Disk::StripeOrder        },
    {"WriteCacheStatus",        &Disk::WriteCacheStatus   },
    {"WriteCacheSetting",       &Disk::WriteCacheSetting  },
    {"Partitioned",             &Disk::Partitioned        },
    {"LogicalDriveName",        &Disk::LogicalDriveName   },
    {"ReadCacheStatus",         &Disk::ReadCacheStatus    },
    {"DriveList",               &Disk::DriveList          },
    {"DefunctSegments",         &Disk::DefunctSegments    },
};
static_assert(std::size(kLogicalDiskProperties) == 23);

constexpr Property<ArrayStripeOrder> kDiskGroupProperties[] = {
    {"CollectionID",  &ArrayStripeOrder::CollectionID },
    {"Array",         &ArrayStripeOrder::Array        },
    {"ControllerNum", &ArrayStripeOrder::ControllerNum},
    {"StripeOrder",   &ArrayStripeOrder::StripeOrder  },
};

using Drive = ZenxPhysicalDevice;
constexpr Property<Controller, Drive> kDiskDriveProperties[] = {
    {"OtherIdentifyingInfo",    DriveIdentifyingInfo    },
    {"DeviceID",                DiskDriveId             },
    {"SystemCreationClassName", kComputerSystem         },
    {"CreationClassname",       "KVRSG_zxDiskDrive"     },
    {"SystemName",              MachineName             },
    {"ControllerNum",           &Drive::ControllerNum   },
    {"Channel",                 &Drive::Channel         },
    {"DeviceNumber",            &Drive::DeviceNumber    },
    {"ScsiId",                  &Drive::ScsiId          },
    {"DeviceType",              &Drive::DeviceType      },
    {"PFA",                     &Drive::PFA             },
    {"State",                   &Drive::State           },
    {"Size",                    &Drive::Size            },
    {"DeviceCode",              &Drive::DeviceCode      },
    {"DeviceSerialNum",         &Drive::DeviceSerialNum },
    {"FRU",                     &Drive::FRU             },
    {"Firmware",                &Drive::Firmware        },
    {"Vendor",                  &Drive::Vendor          },
    {"Model",                   &Drive::Model           },
    {"Enclosure",               &Drive::Enclosure       },
    {"TransferSpeed",           &Drive::TransferSpeed   },
    {"ReportedChannel",         &Drive::ReportedChannel },
    {"WorldWideName",           &Drive::WorldWideName   },
    {"WriteCache",              &Drive::WriteCache      },
    {"Type",                    &Drive::Type            },
    {"EnclosureId",             &Drive::EnclosureId     },
    {"ReportedESD",             &Drive::ReportedESD     },
    {"ReportedLocation",        &Drive::ReportedLocation},
    {"Supported",               &Drive::Supported       },
};
static_assert(std::size(kDiskDriveProperties) == 29);

// A failed controller answers for none of its own values; what hangs on it is published all the same.
bool HasFailed(const ZenxController& controller) { return Contains(controller.ControllerStatus, "Failed"); }

}  // namespace

void PublishControllers(const PublishContext& context, ICIMClass& publishedClass) {
  const auto read = [&] { return context.collector.GetControllers(); };
  for (const auto& controller : ReadControllers(context.host, read)) {
    if (!HasFailed(*controller)) PublishTrimmed(publishedClass, kControllerProperties, *controller);
  }
}

void PublishLogicalDisks(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& disk : controller->LogicalDevices) {
      PublishTrimmed(publishedClass, kLogicalDiskProperties, *controller, *disk);
    }
  }
}

void PublishDiskGroups(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& group : controller->StripeOrders) PublishTrimmed(publishedClass, kDiskGroupProperties, *group);
  }
}

void PublishDiskDrives(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& drive : controller->PhysicalDevices) {
      PublishTrimmed(publishedClass, kDiskDriveProperties, *controller, *drive);
    }
  }
}
