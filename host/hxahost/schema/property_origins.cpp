#include "host/hxahost/schema/property_origins.h"

#include <algorithm>
#include <iterator>

namespace hxahost {

namespace {

constexpr PropertyOrigin InWords(std::string_view property, std::string_view words) {
  return {property, "", "", "", words};
}

// Said once for all classes that have them.
constexpr auto kSystemClass = InWords("SystemCreationClassName", "fixed text");
constexpr auto kOwnClass = InWords("CreationClassName", "fixed text: the name of the class");
constexpr auto kSystemName = InWords("SystemName", "host: name of the machine");
constexpr auto kControllerNumber =
    InWords("ControllerNum", "number by which the tool was asked, counted on from tool to tool");
constexpr auto kStatisticTime = InWords("StatisticTime", "host: local time at which the row was read");

constexpr PropertyOrigin kControllers[] = {
    kSystemClass,
    kOwnClass,
    kSystemName,
    InWords("DeviceID", "made of fixed text and ControllerNum"),
    InWords("OtherIdentifyingInfo", "ControllerType; fixed text and ControllerNum"),
    kControllerNumber,
    {"ControllerType",              "Controller type",                 "",                                "Controller Model|Controller type",
      "the model's name in full, where it is a known one"                                                                                                                          },
    {"ControllerStatus",            "",                                "Controller Status",               "Controller Status",                ""                                  },
    {"ChannelDescription",          "",                                "Channel description",             "Channel description",              ""                                  },
    {"SerialNum",                   "Controller Serial Number",        "",                                "Controller Serial Number",         ""                                  },
    {"ControllerSlotInfo",          "Controller slot information",     "",                                "Physical Slot",                    ""                                  },
    {"InstalledMemory",             "",                                "",                                "Installed memory",                 ""                                  },
    {"PartNum",                     "Part number",                     "",                                "",                                 ""                                  },
    {"DeviceDriverVersion",         "Device driver version",           "Driver",                          "Driver",                           "hrconf_64 is asked with getversion"},
    {"ClusterSolutionVersion",      "Cluster solution",                "",                                "",                                 ""                                  },
    {"CopyBackEnabled",             "",                                "",                                "Copyback",                         ""                                  },
    {"ControllerName",              "Controller name",                 "",                                "",                                 ""                                  },
    {"ScsiChannelDescr",            "SCSI channel description",        "",                                "",                                 ""                                  },
    {"InitiatorChannelScsiId",      "Initiator IDs (Channel/SCSI ID",  "",                                "",                                 ""                                  },
    {"MaxPhysicalDevices",          "Maximum physical devices",        "",                                "",                                 ""                                  },
    {"DefunctDiskDriveCnt",         "Defunct disk drive count",        "Defunct disk drive count",        "Defunct disk drive count",         ""                                  },
    {"LogicalDriveStatusCnt",       "Logical drives/Offline/Critical", "Logical drives/Offline/Critical",
      "Logical drives/Offline/Critical",                                                                                                       ""                                  },
    {"ReadAhead",                   "Readahead cache setting",         "",                                "",                                 ""                                  },
    {"StripeUnitSize",              "Stripe-unit size",                "",                                "",                                 ""                                  },
    {"RebuildRate",                 "Rebuild rate (Low/Medium/High)",  "",                                "",                                 ""                                  },
    {"HotSwapRebuild",              "Hot-swap rebuild",                "",                                "",                                 ""                                  },
    {"DataScrubbing",               "Data scrubbing",                  "",                                "Data scrubbing",                   ""                                  },
    {"HotSpareCopyBack",            "Hot-spare",                       "",                                "",                                 ""                                  },
    {"PartOfCluster",               "Part of cluster (Yes/No)",        "",                                "",                                 ""                                  },
    {"UnattendedMode",              "Unattended mode (Yes/No)",        "",                                "",                                 ""                                  },
    {"ConcurrentCommandsSupported", "Concurrent commands supported",   "",                                "",                                 ""                                  },
    {"ConfigurationUpdateCount",    "Configuration update count",      "",                                "",                                 ""                                  },
    {"Current_MostRecentOperation", "Current/most recent operation",   "",                                "",                                 "asked with getstatus"              },
    {"Logical_Drive",               "Logical drive",                   "",                                "",                                 "asked with getstatus"              },
    {"BackgroundOperationActive",   "Background operation active",     "",                                "",                                 "asked with getstatus"              },
    {"LastCmdStatus",               "Status",                          "",                                "",                                 "asked with getstatus"              },
    {"LogicalDriveSizeInStripes",   "Logical drive size (in stripes)", "",                                "",                                 "asked with getstatus"              },
    {"NumberOfRemainingStripes",    "Number of remaining stripes",     "",                                "",                                 "asked with getstatus"              },
    {"VPD",                         "",                                "",                                "VPD Assigned#",                    ""                                  },
    {"ECVersion",                   "",                                "",                                "EC Version#",                      ""                                  },
    {"ControllerFRU",               "Controller FRU",                  "",                                "Controller FRU#",                  ""                                  },
    {"ControllerTemp",              "",                                "",                                "Temperature",                      "of the section on the controller"  },
    {"ControllerBatteryStatus",     "",                                "",                                "Status",                           "of the section on the battery"     },
    {"ControllerBatteryOverTemp",   "",                                "",                                "Over temperature",                 ""                                  },
    {"ControllerBatteryCapacity",   "",                                "",                                "Capacity",                         ""                                  },
    {"ControllerBatteryFRU",        "",                                "",                                "Battery FRU#",                     ""                                  },
    {"BatteryTimeRemaining",        "",                                "",                                "Time remaining",                   ""                                  },
};

constexpr PropertyOrigin kLogicalDisks[] = {
    InWords("DeviceID", "made of fixed text, ControllerNum and LogicalDriveNum"),
    kSystemClass,
    kOwnClass,
    kSystemName,
    {"AccessBlocked",      "Access blocked",          "",                          "",                        ""},
    kControllerNumber,
    {"LogicalDriveNum",    "Logical drive number",    "Logical drive number",      "Logical drive number",    ""},
    {"LogicalDriveStatus", "Status of logical drive", "Status of logical drive",   "Status of logical drive", ""},
    {"NumOfChunks",        "Number of chunks",        "Number of chunks",          "",                        ""},
    {"NumOfSegments",      "",                        "",                          "Number of segments",      ""},
    {"PartOfArray",        "Part of array",           "",                          "",                        ""},
    {"PartOfMergeGroup",   "Part of merge group",     "",                          "",                        ""},
    {"RaidLevel",          "RAID level",              "RAID level",                "RAID level",              ""},
    {"Size",               "Size (in MB)",            "Size",                      "Size",                    ""},
    {"StripeUnitSize",     "Stripe-unit size",        "Stripe-unit size",          "Stripe-unit size",        ""},
    {"StripeOrder",        "",                        "",                          "Stripe order",            ""},
    {"WriteCacheStatus",   "Write cache status",      "Write cache status",        "Write-cache mode",        ""},
    {"WriteCacheSetting",  "",                        "",                          "Write-cache setting",     ""},
    {"Partitioned",        "",                        "",                          "Partitioned",             ""},
    {"LogicalDriveName",   "",                        "Logical drive name",        "Logical drive name",      ""},
    {"ReadCacheStatus",    "",                        "",                          "Read-cache mode",         ""},
    {"DriveList",          "",                        "Drive(s) (Channel,Device)", "Drive(s)",                ""},
    {"DefunctSegments",    "",                        "",                          "Defunct segments",        ""},
};

constexpr PropertyOrigin kOfDiskGroups[] = {
    InWords("CollectionID",
            "made of fixed text, ControllerNum, and the array's letter (qcmdrun) or the logical drive's "
            "number and StripeOrder (hrconf_64, arcconf)"),
    {"Array",       " stripe order (Channel/SCSI ID)", "",             "",                              "the letter before the label"},
    kControllerNumber,
    {"StripeOrder", " stripe order (Channel/SCSI ID)", "Stripe order", "Stripe order (Channel,Device)", ""                           },
};

constexpr PropertyOrigin kDiskDrives[] = {
    InWords("OtherIdentifyingInfo", "DeviceType; fixed text, Channel and ScsiId"),
    {"DeviceID",         "Device ID",                 "Device #",           "Device #",
                                                                            "made of ControllerNum, Channel and ScsiId, and what it ends with"                                                                                                   },
    kSystemClass,
    kOwnClass,
    kSystemName,
    kControllerNumber,
    {"Channel",          "",                          "Channel",            "Reported Channel",
                                                                            "qcmdrun, hrconf_64: the heading of the channel; else 0 (hrconf_64)"                                                                                                 },
    {"DeviceNumber",     "",                          "Device #",           "Device #",                 ""                                                                },
    {"ScsiId",           "SCSI ID",                   "",                   "Reported Channel",         "arcconf: behind the comma"                                       },
    {"DeviceType",       "Device is a",               "Device is a",        "Device is a",              ""                                                                },
    {"PFA",              "PFA (Yes/No)",              "PFA",                "PFA",                      ""                                                                },
    {"State",            "State",                     "State",              "State|Assigned Spare for", ""                                                                },
    {"Size",             "Size (in MB)/(in sectors)", "Size",               "Size",                     ""                                                                },
    {"DeviceCode",       "Device ID",                 "",                   "",                         "of a hard disk: a part of the value"                             },
    {"DeviceSerialNum",  "Device ID",                 "Serial number",      "Serial",                   "qcmdrun: of a hard disk, a part of the value"                    },
    {"FRU",              "FRU part number",           "FRU",                "FRU",                      ""                                                                },
    {"Firmware",         "Device ID",                 "Firmware",           "Firmware",                 "qcmdrun: of a hard disk or tape, a part of the value"            },
    {"Vendor",           "",                          "Vendor",             "Vendor",                   ""                                                                },
    {"Model",            "Device ID",                 "Model",              "Model",                    "qcmdrun: of a hard disk a part of the value, of a tape all of it"},
    {"Enclosure",        "",                          "Reported Enclosure", "Reported Enclosure",       ""                                                                },
    {"TransferSpeed",    "",                          "Transfer Speed",     "Transfer Speed",           ""                                                                },
    {"ReportedChannel",  "",                          "Reported Channel",   "Reported Channel",         ""                                                                },
    {"WorldWideName",    "",                          "World-wide name",    "World-wide name",          ""                                                                },
    {"WriteCache",       "",                          "Write Cache",        "Write Cache",              ""                                                                },
    {"Type",             "",                          "",                   "Type",                     "of an enclosure"                                                 },
    {"EnclosureId",      "",                          "",                   "Enclosure ID",             "of an enclosure"                                                 },
    {"ReportedESD",      "",                          "",                   "Reported ESD",             ""                                                                },
    {"ReportedLocation", "",                          "",                   "Reported Location",        ""                                                                },
    {"Supported",        "",                          "Supported",          "Supported",                ""                                                                },
};

constexpr PropertyOrigin kOfBadStripes[] = {
    InWords("InstanceID", "made of fixed text, ControllerNum and LogicalDrive"),
    kControllerNumber,
    {"LogicalDrive", "Logical drive ", "", "",
      "asked with getbst; LogicalDriveNum of each logical disk where it lists none"},
    InWords("NumBadStripes", "qcmdrun getbst: the number behind the dash; 0 where it lists none"),
};

constexpr PropertyOrigin kDeviceData[] = {
    InWords("InstanceID", "made of fixed text, ControllerNum, Channel and ScsiId"),
    kStatisticTime,
    kControllerNumber,
    InWords("Channel", "qcmdrun getevent device: column 1"),
    InWords("Misc", "qcmdrun getevent device: column 7"),
    InWords("NumHardErrors", "qcmdrun getevent device: column 5"),
    InWords("NumParityErrors", "qcmdrun getevent device: column 3"),
    InWords("NumSoftErrors", "qcmdrun getevent device: column 4"),
    InWords("PFA", "qcmdrun getevent device: column 6"),
    InWords("ScsiId", "qcmdrun getevent device: column 2"),
};

constexpr PropertyOrigin kOfSubStatus[] = {
    {"ControllerNum", "A:",          "", "", "asked with getsubstat; as the tool itself numbers it"},
    kStatisticTime,
    {"Channel",       "C:",          "", "", "asked with getsubstat"                               },
    {"ScsiId",        "I:",          "", "", "asked with getsubstat"                               },
    InWords("InstanceID", "made of fixed text, ControllerNum, Channel and ScsiId"),
    {"Params",        "PARAMS:",     "", "", "asked with getsubstat"                               },
    {"Req_Off",       "REQ-OFF:",    "", "", "asked with getsubstat"                               },
    {"Max_Txer_P",    "MAX-TXER-P:", "", "", "asked with getsubstat"                               },
    {"Cur_Txer_p",    "CUR-TXER-P:", "", "", "asked with getsubstat"                               },
};

constexpr auto kLogClass = InWords("LogCreationClassName", "fixed text");
constexpr auto kLogName = InWords("LogName", "fixed text");
constexpr auto kNoTime = InWords("MessageTimestamp", "fixed: 2000-01-01 01:01:01, the log gives no time");
constexpr auto kOneLog = InWords("RecordID", "ControllerNum: a controller has one such log");
constexpr auto kCount = InWords("NumEntries", "how many codes there are");

constexpr PropertyOrigin kSoftEvents[] = {
    InWords("CreationClassName", "fixed text"),
    kLogClass,
    kLogName,
    kNoTime,
    kOneLog,
    kControllerNumber,
    kCount,
    {"HexSoftEvent", "Controller Soft Event Log", "", "", "asked with getevent soft: the lines below, one code each"},
};

constexpr PropertyOrigin kHardEvents[] = {
    InWords("CreationClassName", "fixed text: the soft log's class, as it has always been"),
    kLogClass,
    kLogName,
    kControllerNumber,
    kNoTime,
    kOneLog,
    kCount,
    {"HexHardEvent", "Controller Hard Event Log", "", "", "asked with getevent hard: the lines below, one code each"},
};

constexpr PropertyOrigin kDefunctDrives[] = {
    kOwnClass,
    kLogClass,
    kLogName,
    InWords("Controller", "number by which the tool was asked, counted on from tool to tool"),
    InWords("MessageTimestamp", "Date and Time, taken for UTC"),
    InWords("RecordID", "number of the row, four hexadecimal digits"),
    InWords("Date", "qcmdrun getevent ddd: column 1"),
    InWords("Time", "qcmdrun getevent ddd: column 2"),
    InWords("Channel", "qcmdrun getevent ddd: column 3"),
    InWords("ID", "qcmdrun getevent ddd: column 4"),
    InWords("Reason", "qcmdrun getevent ddd: column 5"),
    InWords("Descrip", "qcmdrun getevent ddd: column 6"),
};

constexpr PropertyOrigin kRaidManagerEvents[] = {
    kOwnClass,
    InWords("LogCreationClassName", "fixed text, with RAIMgr in it, as it has always been"),
    kLogName,
    InWords("MessageTimestamp", "RAID manager's log: first field, with the offset of its zone"),
    InWords("RecordID", "number of the record, counted on for the life of the process"),
    InWords("Severity", "RAID manager's log: second field"),
    InWords("MachineName", "RAID manager's log: third field"),
    InWords("Message", "RAID manager's log: fourth field"),
};

constexpr PropertyOrigin kManagerRawData[] = {
    InWords("Command", "RAID manager's log: its path, as the registry has it"),
    InWords("RawResults", "RAID manager's log: the whole file, line by line"),
};

constexpr PropertyOrigin kRawData[] = {
    InWords("Command", "the tool's path, the command, the number asked by, the option"),
    InWords("RawResults", "qcmdrun, hrconf_64, arcconf: the whole answer, line by line"),
};

constexpr auto kBuild = InWords("BuildNumber", "Version: what stands in parentheses");
constexpr auto kElementState = InWords("SoftwareElementState", "fixed: 3");
constexpr auto kOnController = InWords("SoftwareElementID", "ControllerNum of the controller");
constexpr auto kTargetSystem = InWords("TargetOperatingSystem", "fixed: 66");
constexpr auto kControllerName = InWords("Name", "made of fixed text and the controller's number");

constexpr PropertyOrigin kOfFirmware[] = {
    kControllerName, {"Version", "Firmware version", "", "Firmware", ""},
     kBuild, kElementState, kOnController,
    kTargetSystem,
};

constexpr PropertyOrigin kOfBootBlock[] = {
    InWords("Name", "fixed text"),
    {"Version", "Boot block version", "Boot", "Boot", ""},
    kBuild,
    kElementState,
    kOnController,
    kTargetSystem,
};

constexpr PropertyOrigin kOfBios[] = {
    kControllerName, {"Version", "Actual BIOS version", "BIOS", "BIOS", "hrconf_64 is asked with getversion"},
    kBuild,          kElementState,
    kOnController,   kTargetSystem,
};

constexpr PropertyOrigin kOfDriveFirmware[] = {
    InWords("Name", "fixed text, by the kind of device"),
    InWords("Version", "Firmware of the drive, without the build"),
    InWords("BuildNumber", "Firmware of the drive: what stands in parentheses"),
    kElementState,
    InWords("SoftwareElementID", "made of ControllerNum and DeviceID of the drive"),
    kTargetSystem,
    InWords("Manufacturer", "Vendor of the drive; of hard disks alone"),
};

constexpr auto kTheController = InWords("Antecedent", "the controller, found by its ControllerNum");

constexpr PropertyOrigin kByControllerNumber[] = {
    InWords("Dependent", "each with the controller's ControllerNum"),
    kTheController,
};
constexpr PropertyOrigin kBySoftwareElement[] = {
    InWords("Dependent", "each with the controller's number as SoftwareElementID"),
    kTheController,
};
constexpr PropertyOrigin kByBiosName[] = {
    InWords("Dependent", "each whose Name has the controller's number"),
    kTheController,
};
constexpr PropertyOrigin kByDriveSoftware[] = {
    InWords("Dependent", "each whose SoftwareElementID is made of the drive's ControllerNum and DeviceID"),
    InWords("Antecedent", "a drive of a kind that has firmware, by DeviceType"),
};
constexpr PropertyOrigin kByDriveCounters[] = {
    InWords("Stats", "each whose InstanceID is made of the drive's ControllerNum, Channel and ScsiId"),
    InWords("ManagedElement", "a drive of a kind that errors are counted on, by DeviceType"),
};
constexpr PropertyOrigin kByBadStripes[] = {
    InWords("Stats", "each with the same ControllerNum and number of the logical drive, run together"),
    InWords("ManagedElement", "the logical disk"),
};

struct OriginsOfClass {
  std::string_view className;
  std::span<const PropertyOrigin> origins;
};

constexpr OriginsOfClass kOrigins[] = {
    {"KVRSG_zxManagerRawData",                    kManagerRawData    },
    {"KVRSG_zxRawData",                           kRawData           },
    {"KVRSG_zxSCSIProtocolController",            kControllers       },
    {"KVRSG_zxLogicalDisk",                       kLogicalDisks      },
    {"KVRSG_zxDiskGroup",                         kOfDiskGroups      },
    {"KVRSG_zxDiskDrive",                         kDiskDrives        },
    {"KVRSG_BadStripeData",                       kOfBadStripes      },
    {"KVRSG_zxSCSIDeviceData",                    kDeviceData        },
    {"KVRSG_zxSCSISubStatData",                   kOfSubStatus       },
    {"KVRSG_LogRecord_SoftEvent",                 kSoftEvents        },
    {"KVRSG_LogRecord_zxDDD",                     kDefunctDrives     },
    {"KVRSG_LogRecord_HardEvent",                 kHardEvents        },
    {"KVRSG_LogRecord_RAIDMgrEvent",              kRaidManagerEvents },
    {"KVRSG_zxFirmwareVersion",                   kOfFirmware        },
    {"KVRSG_zxBootBlockVersion",                  kOfBootBlock       },
    {"KVRSG_zxDiskDriveVersion",                  kOfDriveFirmware   },
    {"KVRSG_zxBiosVersion",                       kOfBios            },
    {"KVRSG_zxProtocolControllerForUnit",         kByControllerNumber},
    {"KVRSG_zxProtocolControllerForPhysicalDisk", kByControllerNumber},
    {"KVRSG_zxStripeOrderForController",          kByControllerNumber},
    {"KVRSG_zxFirmwareOnController",              kBySoftwareElement },
    {"KVRSG_zxBootBlockOnController",             kBySoftwareElement },
    {"KVRSG_zxFirmwareOnDiskDrive",               kByDriveSoftware   },
    {"KVRSG_zxBiosOnController",                  kByBiosName        },
    {"KVRSG_ElementZxScsiDeviceData",             kByDriveCounters   },
    {"KVRSG_ElementBadStripeData",                kByBadStripes      },
};

std::string InQuotes(std::string_view cell) {
  std::string quoted;
  for (const std::string_view label : LabelsOf(cell)) {
    quoted.append(quoted.empty() ? "\"" : ", \"").append(label).append("\"");
  }
  return quoted;
}

}  // namespace

std::span<const PropertyOrigin> OriginsOf(std::string_view className) {
  const auto* const found = std::ranges::find(kOrigins, className, &OriginsOfClass::className);
  return found == std::end(kOrigins) ? std::span<const PropertyOrigin>() : found->origins;
}

std::vector<std::string> OriginLines(const PropertyOrigin& origin) {
  std::vector<std::string> lines;
  if (!origin.qcmdrun.empty()) lines.push_back("qcmdrun: " + InQuotes(origin.qcmdrun));
  if (!origin.hrconf.empty()) lines.push_back("hrconf_64: " + InQuotes(origin.hrconf));
  if (!origin.arcconf.empty()) lines.push_back("arcconf: " + InQuotes(origin.arcconf));
  if (!origin.otherwise.empty()) lines.emplace_back(origin.otherwise);
  return lines;
}

std::vector<std::string> OriginLines(std::string_view className, std::string_view property) {
  const auto origins = OriginsOf(className);
  const auto found = std::ranges::find(origins, property, &PropertyOrigin::property);
  return found == origins.end() ? std::vector<std::string>() : OriginLines(*found);
}

std::vector<std::string_view> LabelsOf(std::string_view cell) {
  std::vector<std::string_view> labels;
  while (!cell.empty()) {
    const std::size_t end = std::min(cell.find('|'), cell.size());
    labels.push_back(cell.substr(0, end));
    cell.remove_prefix(std::min(end + 1, cell.size()));
  }
  return labels;
}

}  // namespace hxahost
