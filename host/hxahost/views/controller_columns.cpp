#include "host/hxahost/views/controller_columns.h"

#include "host/hxahost/schema/class_names.h"

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

// States are not narrowed, and are where no narrow page cuts them off: they are what people look for.
constexpr InstanceColumn kLogicalDrives[] = {
    {"Drive",        "LogicalDriveNum",    8,  5 },
    {"Name",         "LogicalDriveName",   20, 8 },
    {"RAID",         "RaidLevel",          12, 4 },
    {"Size",         "Size",               16, 10},
    {"State",        "LogicalDriveStatus", 30, 30},
    {"Blocked",      "AccessBlocked",      10, 7 },
    {"Defunct",      "DefunctSegments",    20, 9 },
    {"Array",        "PartOfArray",        10, 5 },
    {"Stripe unit",  "StripeUnitSize",     12, 6 },
    {"Write cache",  "WriteCacheStatus",   24, 8 },
    {"Read cache",   "ReadCacheStatus",    16, 8 },
    {"Stripe order", "StripeOrder",        40, 12},
};

constexpr InstanceColumn kDiskGroups[] = {
    {"Array",        "Array",        10, 8},
    {"Stripe order", "StripeOrder",  60, 8},
    {"Identifier",   "CollectionID", 60, 8},
};

constexpr InstanceColumn kDisks[] = {
    {"Ch",       "Channel",         8,  2 },
    {"ID",       "ScsiId",          6,  2 },
    {"Type",     "DeviceType",      24, 9 },
    {"Model",    "Model",           20, 10},
    {"State",    "State",           30, 30},
    {"PFA",      "PFA",             8,  3 },
    {"Size",     "Size",            16, 8 },
    {"Serial",   "DeviceSerialNum", 24, 20},
    {"Firmware", "Firmware",        10, 8 },
    {"FRU",      "FRU",             12, 8 },
    {"Vendor",   "Vendor",          10, 8 },
};

constexpr DeviceKind kKinds[] = {
    {kControllerClass,  "",               {}            },
    {kLogicalDiskClass, "Logical drives", kLogicalDrives},
    {kDiskGroupClass,   "Disk groups",    kDiskGroups   },
    {kDiskDriveClass,   "Disks",          kDisks        },
};

}  // namespace

std::span<const Fact> IdentityFacts() { return kIdentity; }
std::span<const Fact> StateFacts() { return kState; }
std::span<const DeviceKind> DeviceKinds() { return kKinds; }

}  // namespace hxahost
