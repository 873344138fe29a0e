#include "host/hxahost/controller_columns.h"

namespace hxahost {

namespace {

constexpr Fact kIdentity[] = {
    {"name",   "ControllerName"     },
    {"serial", "SerialNum"          },
    {"slot",   "ControllerSlotInfo" },
    {"memory", "InstalledMemory"    },
    {"driver", "DeviceDriverVersion"},
    {"part",   "PartNum"            },
    {"FRU",    "ControllerFRU"      },
    {"VPD",    "VPD"                },
};

constexpr Fact kState[] = {
    {"defunct drives",           "DefunctDiskDriveCnt"        },
    {"logical drives",           "LogicalDriveStatusCnt"      },
    {"operation",                "Current_MostRecentOperation"},
    {"on logical drive",         "Logical_Drive"              },
    {"background operation",     "BackgroundOperationActive"  },
    {"stripes remaining",        "NumberOfRemainingStripes"   },
    {"last command",             "LastCmdStatus"              },
    {"temperature",              "ControllerTemp"             },
    {"battery",                  "ControllerBatteryStatus"    },
    {"battery over temperature", "ControllerBatteryOverTemp"  },
    {"battery capacity",         "ControllerBatteryCapacity"  },
    {"battery time",             "BatteryTimeRemaining"       },
};

constexpr InstanceColumn kLogicalDrives[] = {
    {"Drive",        "LogicalDriveNum",    8 },
    {"Name",         "LogicalDriveName",   20},
    {"RAID",         "RaidLevel",          12},
    {"Size",         "Size",               16},
    {"State",        "LogicalDriveStatus", 30},
    {"Blocked",      "AccessBlocked",      10},
    {"Defunct",      "DefunctSegments",    20},
    {"Array",        "PartOfArray",        10},
    {"Stripe unit",  "StripeUnitSize",     12},
    {"Write cache",  "WriteCacheStatus",   24},
    {"Read cache",   "ReadCacheStatus",    16},
    {"Stripe order", "StripeOrder",        40},
};

constexpr InstanceColumn kDiskGroups[] = {
    {"Array",        "Array",        10},
    {"Stripe order", "StripeOrder",  60},
    {"Identifier",   "CollectionID", 60},
};

constexpr InstanceColumn kDisks[] = {
    {"Channel",  "Channel",         8 },
    {"ID",       "ScsiId",          6 },
    {"Type",     "DeviceType",      24},
    {"Model",    "Model",           20},
    {"State",    "State",           30},
    {"Size",     "Size",            16},
    {"Serial",   "DeviceSerialNum", 24},
    {"Firmware", "Firmware",        10},
    {"PFA",      "PFA",             8 },
    {"Vendor",   "Vendor",          10},
    {"FRU",      "FRU",             12},
    {"Device",   "DeviceNumber",    8 },
};

constexpr DeviceKind kKinds[] = {
    {"KVRSG_zxSCSIProtocolController", "",               {}            },
    {"KVRSG_zxLogicalDisk",            "Logical drives", kLogicalDrives},
    {"KVRSG_zxDiskGroup",              "Disk groups",    kDiskGroups   },
    {"KVRSG_zxDiskDrive",              "Disks",          kDisks        },
};

}  // namespace

std::span<const Fact> IdentityFacts() { return kIdentity; }
std::span<const Fact> StateFacts() { return kState; }
std::span<const DeviceKind> DeviceKinds() { return kKinds; }

}  // namespace hxahost
