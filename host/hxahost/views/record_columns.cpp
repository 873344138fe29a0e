#include "host/hxahost/views/record_columns.h"

namespace hxahost {

namespace {

constexpr std::string_view kVersionClasses[] = {"KVRSG_zxFirmwareVersion", "KVRSG_zxBootBlockVersion",
                                                "KVRSG_zxBiosVersion", "KVRSG_zxDiskDriveVersion"};
constexpr std::string_view kBadStripeClasses[] = {"KVRSG_BadStripeData"};
constexpr std::string_view kStatisticsClasses[] = {"KVRSG_zxSCSIDeviceData"};
constexpr std::string_view kSubStatusClasses[] = {"KVRSG_zxSCSISubStatData"};
constexpr std::string_view kDddClasses[] = {"KVRSG_LogRecord_zxDDD"};
constexpr std::string_view kSoftClasses[] = {"KVRSG_LogRecord_SoftEvent"};
constexpr std::string_view kHardClasses[] = {"KVRSG_LogRecord_HardEvent"};
constexpr std::string_view kManagerClasses[] = {"KVRSG_LogRecord_RAIDMgrEvent"};

constexpr InstanceColumn kVersions[] = {
    {"Controller",   "",                  30, 10, Cell::kController,   true },
    {"Location",     "",                  30, 20, Cell::kLocation,     true },
    {"Serial",       "",                  24, 10, Cell::kSerialNumber, true },
    {"Version",      "Version",           30, 16, Cell::kProperty,     true },
    {"Name",         "Name",              30, 20, Cell::kProperty,     false},
    {"Build",        "BuildNumber",       16, 8,  Cell::kProperty,     false},
    {"Manufacturer", "Manufacturer",      16, 8,  Cell::kProperty,     false},
    {"Element",      "SoftwareElementID", 60, 8,  Cell::kProperty,     false},
};

constexpr InstanceColumn kBadStripes[] = {
    {"Controller",    "ControllerNum", 30, 10, Cell::kController, true },
    {"Logical drive", "LogicalDrive",  13, 8,  Cell::kProperty,   false},
    {"Bad stripes",   "NumBadStripes", 12, 8,  Cell::kProperty,   false},
};

constexpr InstanceColumn kStatistics[] = {
    {"Controller",    "ControllerNum",   30, 10, Cell::kController, true },
    {"Channel",       "Channel",         8,  8,  Cell::kProperty,   false},
    {"ID",            "ScsiId",          8,  8,  Cell::kProperty,   false},
    {"Hard errors",   "NumHardErrors",   12, 8,  Cell::kProperty,   false},
    {"Soft errors",   "NumSoftErrors",   12, 8,  Cell::kProperty,   false},
    {"Parity errors", "NumParityErrors", 13, 8,  Cell::kProperty,   false},
    {"Misc",          "Misc",            12, 8,  Cell::kProperty,   false},
    {"PFA",           "PFA",             12, 8,  Cell::kProperty,   false},
};

constexpr InstanceColumn kSubStatus[] = {
    {"Controller",       "ControllerNum", 30, 10, Cell::kController, true },
    {"Channel",          "Channel",       8,  8,  Cell::kProperty,   false},
    {"ID",               "ScsiId",        8,  8,  Cell::kProperty,   false},
    {"Parameters",       "Params",        16, 8,  Cell::kProperty,   false},
    {"Req/Off",          "Req_Off",       10, 8,  Cell::kProperty,   false},
    {"Highest transfer", "Max_Txer_P",    18, 8,  Cell::kProperty,   false},
    {"Current transfer", "Cur_Txer_p",    18, 8,  Cell::kProperty,   false},
};

constexpr InstanceColumn kDdd[] = {
    {"Controller",  "Controller", 30, 10, Cell::kController, true },
    {"Date",        "Date",       12, 10, Cell::kProperty,   false},
    {"Time",        "Time",       12, 8,  Cell::kProperty,   false},
    {"Channel",     "Channel",    8,  8,  Cell::kProperty,   false},
    {"ID",          "ID",         8,  8,  Cell::kProperty,   false},
    {"Description", "Descrip",    60, 28, Cell::kProperty,   false},
    {"Reason",      "Reason",     12, 8,  Cell::kProperty,   false},
    {"Record",      "RecordID",   8,  8,  Cell::kProperty,   false},
};

// The logs of soft and hard events contain no times: their published times have no meaning.
constexpr InstanceColumn kSoft[] = {
    {"Controller", "ControllerNum", 30, 10, Cell::kController, true },
    {"Entries",    "NumEntries",    8,  8,  Cell::kProperty,   false},
    {"Codes",      "HexSoftEvent",  80, 8,  Cell::kProperty,   false},
};

constexpr InstanceColumn kHard[] = {
    {"Controller", "ControllerNum", 30, 10, Cell::kController, true },
    {"Entries",    "NumEntries",    8,  8,  Cell::kProperty,   false},
    {"Codes",      "HexHardEvent",  80, 8,  Cell::kProperty,   false},
};

constexpr InstanceColumn kManager[] = {
    {"Time",     "MessageTimestamp", 26,  26, Cell::kProperty, false},
    {"Severity", "Severity",         12,  8,  Cell::kProperty, false},
    {"Message",  "Message",          100, 36, Cell::kProperty, false},
    {"Machine",  "MachineName",      16,  8,  Cell::kProperty, false},
    {"Record",   "RecordID",         8,   8,  Cell::kProperty, false},
};

// Events come first: they are always shown.
constexpr RecordSection kSections[] = {
    {"Defunct drives log",  kDddClasses,        kDdd,        true },
    {"Soft events",         kSoftClasses,       kSoft,       true },
    {"Hard events",         kHardClasses,       kHard,       true },
    {"RAID manager events", kManagerClasses,    kManager,    true },
    {"Versions",            kVersionClasses,    kVersions,   false},
    {"Bad stripes",         kBadStripeClasses,  kBadStripes, false},
    {"Device statistics",   kStatisticsClasses, kStatistics, false},
    {"SCSI sub-status",     kSubStatusClasses,  kSubStatus,  false},
};

}  // namespace

std::span<const RecordSection> RecordSections() { return kSections; }

}  // namespace hxahost
