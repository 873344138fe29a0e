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

// The most important columns are at the left, and are kept if the layout is narrow.
constexpr InstanceColumn kLogicalDrives[] = {
    {"Drive",        "LogicalDriveNum",    8,  5,  Cell::kProperty, true },
    {"Name",         "LogicalDriveName",   20, 8,  Cell::kProperty, true },
    {"State",        "LogicalDriveStatus", 40, 17, Cell::kState,    true },
    {"RAID",         "RaidLevel",          12, 4,  Cell::kProperty, true },
    {"Size",         "Size",               16, 10, Cell::kSize,     true },
    {"Blocked",      "AccessBlocked",      10, 7,  Cell::kProperty, false},
    {"Defunct",      "DefunctSegments",    20, 9,  Cell::kProperty, false},
    {"Array",        "PartOfArray",        10, 5,  Cell::kProperty, false},
    {"Stripe unit",  "StripeUnitSize",     12, 11, Cell::kProperty, false},
    {"Write cache",  "WriteCacheStatus",   24, 14, Cell::kState,    false},
    {"Read cache",   "ReadCacheStatus",    16, 10, Cell::kState,    false},
    {"Stripe order", "StripeOrder",        40, 12, Cell::kProperty, false},
};

constexpr InstanceColumn kDiskGroups[] = {
    {"Array",        "Array",        10, 8, Cell::kProperty, false},
    {"Stripe order", "StripeOrder",  60, 8, Cell::kProperty, false},
    {"Identifier",   "CollectionID", 60, 8, Cell::kProperty, false},
};

constexpr InstanceColumn kDisks[] = {
    {"Location", "",                30, 20, Cell::kLocation, true },
    {"State",    "State",           40, 17, Cell::kState,    true },
    {"Model",    "Model",           20, 10, Cell::kProperty, true },
    {"Serial",   "DeviceSerialNum", 24, 10, Cell::kProperty, true },
    {"Size",     "Size",            16, 8,  Cell::kSize,     true },
    {"Type",     "DeviceType",      20, 9,  Cell::kKind,     false},
    {"PFA",      "PFA",             8,  3,  Cell::kProperty, false},
    {"FRU",      "FRU",             12, 8,  Cell::kProperty, false},
    {"Firmware", "Firmware",        10, 8,  Cell::kProperty, false},
    {"Vendor",   "Vendor",          10, 8,  Cell::kProperty, false},
    {"Ch",       "Channel",         8,  2,  Cell::kProperty, false},
    {"ID",       "ScsiId",          6,  2,  Cell::kProperty, false},
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
