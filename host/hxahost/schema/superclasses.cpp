#include "host/hxahost/schema/superclasses.h"

#include <algorithm>
#include <iterator>

namespace hxahost {

namespace {

constexpr std::string_view kInstanceId[] = {"InstanceID"};
constexpr std::string_view kName[] = {"Name"};
constexpr std::string_view kCollectionId[] = {"CollectionID"};
constexpr std::string_view kEnds[] = {"Antecedent", "Dependent"};
constexpr std::string_view kSystem[] = {"CreationClassName", "Name"};
constexpr std::string_view kDevice[] = {"SystemCreationClassName", "SystemName", "CreationClassName", "DeviceID",
                                        "OtherIdentifyingInfo"};

constexpr Superclass kSuperclasses[] = {
    {"CIM_ManagedElement",              kInstanceId,   "ElementName, a name for people."                          },
    {"CIM_RecordForLog",                {},            "PerceivedSeverity, RecordFormat and RecordData."          },
    {"CIM_LogicalElement",              kName,         "OperationalStatus and HealthState."                       },
    {"CIM_ComputerSystem",              kSystem,       "NameFormat, Dedicated, OperationalStatus and HealthState."},
    {"CIM_SCSIProtocolController",      kDevice,
     "OperationalStatus, HealthState and EnabledState (ControllerStatus has words), Name and NameFormat."         },
    {"CIM_LogicalDisk",                 kDevice,
     "OperationalStatus and HealthState (LogicalDriveStatus has words), BlockSize and NumberOfBlocks (Size is a text "
     "with a unit), Name and NameFormat. DeviceID has no more than 64 characters there."                          },
    {"CIM_DiskDrive",                   kDevice,
     "OperationalStatus and HealthState (State has words), MaxMediaSize (Size is a text with a unit). Enclosures, "
     "tapes and processors are in this class, too. DeviceID has no more than 64 characters there."                },
    {"CIM_CollectionOfMSEs",            kCollectionId,
     "ElementName. CollectionID has no more than 256 characters there; that of many drives can be longer."        },
    {"CIM_SystemSpecificCollection",    kInstanceId,   "Everything: none is ever published."                      },
    {"CIM_Dependency",                  kEnds,         "Nothing."                                                 },
    {"CIM_ProtocolControllerForUnit",   kEnds,         "DeviceNumber and DeviceAccess, which hosts see units by." },
    {"CIM_ProtocolControllerForDevice", kEnds,         "DeviceNumber."                                            },
};

struct Derivation {
  std::string_view className;
  std::string_view superclass;
};

// A class inherits keys and adds none to them. CIM_StatisticalData, CIM_LogRecord and CIM_SoftwareElement have keys
// that do not name the machine, so our statistics, records and versions are derived from their nearest superclass
// without a key. The links to statistics have no superclass, as those of the DMTF need CIM_StatisticalData.
constexpr Derivation kDerivations[] = {
    {"KVRSG_zxManagerRawData",                    "CIM_ManagedElement"             },
    {"KVRSG_zxRawData",                           "CIM_ManagedElement"             },
    {"KVRSG_zxSCSIProtocolController",            "CIM_SCSIProtocolController"     },
    {"KVRSG_zxLogicalDisk",                       "CIM_LogicalDisk"                },
    {"KVRSG_zxDiskGroup",                         "CIM_CollectionOfMSEs"           },
    {"KVRSG_zxDiskDrive",                         "CIM_DiskDrive"                  },
    {"KVRSG_DiskGroup",                           "CIM_SystemSpecificCollection"   },
    {"KVRSG_BadStripeData",                       "CIM_ManagedElement"             },
    {"KVRSG_zxSCSIDeviceData",                    "CIM_ManagedElement"             },
    {"KVRSG_zxSCSISubStatData",                   "CIM_ManagedElement"             },
    {"KVRSG_LogRecord_SoftEvent",                 "CIM_RecordForLog"               },
    {"KVRSG_LogRecord_zxDDD",                     "CIM_RecordForLog"               },
    {"KVRSG_LogRecord_HardEvent",                 "CIM_RecordForLog"               },
    {"KVRSG_LogRecord_RAIDMgrEvent",              "CIM_RecordForLog"               },
    {"KVRSG_zxFirmwareVersion",                   "CIM_LogicalElement"             },
    {"KVRSG_zxBootBlockVersion",                  "CIM_LogicalElement"             },
    {"KVRSG_zxDiskDriveVersion",                  "CIM_LogicalElement"             },
    {"KVRSG_zxBiosVersion",                       "CIM_LogicalElement"             },
    {"KVRSG_zxProtocolControllerForUnit",         "CIM_ProtocolControllerForUnit"  },
    {"KVRSG_zxProtocolControllerForPhysicalDisk", "CIM_ProtocolControllerForDevice"},
    {"KVRSG_zxDriveInDiskGroup",                  "CIM_Dependency"                 },
    {"KVRSG_zxExtenInDiskGroup",                  "CIM_Dependency"                 },
    {"KVRSG_zxStripeOrderForController",          "CIM_Dependency"                 },
    {"KVRSG_zxFirmwareOnController",              "CIM_Dependency"                 },
    {"KVRSG_zxBootBlockOnController",             "CIM_Dependency"                 },
    {"KVRSG_zxFirmwareOnDiskDrive",               "CIM_Dependency"                 },
    {"KVRSG_zxBiosOnController",                  "CIM_Dependency"                 },
    {"KVRSG_ComputerSystem",                      "CIM_ComputerSystem"             },
};

}  // namespace

std::span<const Superclass> Superclasses() { return kSuperclasses; }

const Superclass* SuperclassOf(std::string_view className) {
  const auto* const derived = std::ranges::find(kDerivations, className, &Derivation::className);
  if (derived == std::end(kDerivations)) return nullptr;
  return std::ranges::find(kSuperclasses, derived->superclass, &Superclass::name);
}

}  // namespace hxahost
