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
    {"Name",         "Name",              30},
    {"Version",      "Version",           30},
    {"Build",        "BuildNumber",       16},
    {"Element",      "SoftwareElementID", 40},
    {"Manufacturer", "Manufacturer",      16},
};

constexpr InstanceColumn kBadStripes[] = {
    {"Controller",    "ControllerNum", 10},
    {"Logical drive", "LogicalDrive",  13},
    {"Bad stripes",   "NumBadStripes", 12},
};

constexpr InstanceColumn kStatistics[] = {
    {"Controller",    "ControllerNum",   10},
    {"Channel",       "Channel",         8 },
    {"ID",            "ScsiId",          8 },
    {"Hard errors",   "NumHardErrors",   12},
    {"Soft errors",   "NumSoftErrors",   12},
    {"Parity errors", "NumParityErrors", 13},
    {"Misc",          "Misc",            12},
    {"PFA",           "PFA",             12},
};

constexpr InstanceColumn kSubStatus[] = {
    {"Controller",       "ControllerNum", 10},
    {"Channel",          "Channel",       8 },
    {"ID",               "ScsiId",        8 },
    {"Parameters",       "Params",        16},
    {"Req/Off",          "Req_Off",       10},
    {"Highest transfer", "Max_Txer_P",    18},
    {"Current transfer", "Cur_Txer_p",    18},
};

constexpr InstanceColumn kDdd[] = {
    {"Controller",  "Controller", 10},
    {"Record",      "RecordID",   8 },
    {"Date",        "Date",       12},
    {"Time",        "Time",       12},
    {"Channel",     "Channel",    8 },
    {"ID",          "ID",         8 },
    {"Reason",      "Reason",     12},
    {"Description", "Descrip",    60},
};

constexpr InstanceColumn kSoft[] = {
    {"Controller", "ControllerNum",    10},
    {"Time",       "MessageTimestamp", 26},
    {"Entries",    "NumEntries",       8 },
    {"Codes",      "HexSoftEvent",     80},
};

constexpr InstanceColumn kHard[] = {
    {"Controller", "ControllerNum",    10},
    {"Time",       "MessageTimestamp", 26},
    {"Entries",    "NumEntries",       8 },
    {"Codes",      "HexHardEvent",     80},
};

constexpr InstanceColumn kManager[] = {
    {"Time",     "MessageTimestamp", 26},
    {"Severity", "Severity",         12},
    {"Message",  "Message",          80},
    {"Machine",  "MachineName",      16},
    {"Record",   "RecordID",         8 },
};

constexpr RecordSection kSections[] = {
    {"Versions",            kVersionClasses,    kVersions  },
    {"Bad stripes",         kBadStripeClasses,  kBadStripes},
    {"Device statistics",   kStatisticsClasses, kStatistics},
    {"SCSI sub-status",     kSubStatusClasses,  kSubStatus },
    {"Defunct drives log",  kDddClasses,        kDdd       },
    {"Soft events",         kSoftClasses,       kSoft      },
    {"Hard events",         kHardClasses,       kHard      },
    {"RAID manager events", kManagerClasses,    kManager   },
};

}  // namespace

std::span<const RecordSection> RecordSections() { return kSections; }

}  // namespace hxahost
