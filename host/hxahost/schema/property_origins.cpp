#include "host/hxahost/schema/property_origins.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <type_traits>
#include <variant>

#include <fmt/core.h>

namespace hxahost {

namespace {

template <class Table>
struct FieldOf;
template <class... Records>
struct FieldOf<std::variant<std::span<const LabelledField<Records>>...>> {
  using Type = std::variant<std::string Records::*...>;
};

// A field, of any record, that is read from labels.
using AnyField = FieldOf<AnyLabelTable>::Type;

// A published property, and the record field that it is published from. A property that tools provide in several fields
// has a row for each.
struct FedProperty {
  std::string_view property;
  AnyField field;
};

constexpr FedProperty kControllers[] = {
    {"ControllerType",              &ZenxController::ControllerType             },
    {"ControllerStatus",            &ZenxController::ControllerStatus           },
    {"ChannelDescription",          &ZenxController::ChannelDescription         },
    {"SerialNum",                   &ZenxController::SerialNum                  },
    {"ControllerSlotInfo",          &ZenxController::ControllerSlotInfo         },
    {"InstalledMemory",             &ZenxController::InstalledMemory            },
    {"PartNum",                     &ZenxController::PartNum                    },
    {"DeviceDriverVersion",         &ZenxController::DeviceDriverVersion        },
    {"DeviceDriverVersion",         &ZenxHrConfBios::Driver                     },
    {"ClusterSolutionVersion",      &ZenxController::ClusterSolutionVersion     },
    {"CopyBackEnabled",             &ZenxController::CopyBackEnabled            },
    {"ControllerName",              &ZenxController::ControllerName             },
    {"ScsiChannelDescr",            &ZenxController::ScsiChannelDescr           },
    {"InitiatorChannelScsiId",      &ZenxController::InitiatorChannelScsiId     },
    {"MaxPhysicalDevices",          &ZenxController::MaxPhysicalDevices         },
    {"DefunctDiskDriveCnt",         &ZenxController::DefunctDiskDriveCnt        },
    {"LogicalDriveStatusCnt",       &ZenxController::LogicalDriveStatusCnt      },
    {"ReadAhead",                   &ZenxController::ReadAhead                  },
    {"StripeUnitSize",              &ZenxController::StripeUnitSize             },
    {"RebuildRate",                 &ZenxController::RebuildRate                },
    {"HotSwapRebuild",              &ZenxController::HotSwapRebuild             },
    {"DataScrubbing",               &ZenxController::DataScrubbing              },
    {"HotSpareCopyBack",            &ZenxController::HotSpareCopyBack           },
    {"PartOfCluster",               &ZenxController::PartOfCluster              },
    {"UnattendedMode",              &ZenxController::UnattendedMode             },
    {"ConcurrentCommandsSupported", &ZenxController::ConcurrentCommandsSupported},
    {"ConfigurationUpdateCount",    &ZenxController::ConfigurationUpdateCount   },
    {"Current_MostRecentOperation", &ZenxController::Current_MostRecentOperation},
    {"Logical_Drive",               &ZenxController::Logical_Drive              },
    {"BackgroundOperationActive",   &ZenxController::BackgroundOperationActive  },
    {"LastCmdStatus",               &ZenxController::LastCmdStatus              },
    {"LogicalDriveSizeInStripes",   &ZenxController::LogicalDriveSizeInStripes  },
    {"NumberOfRemainingStripes",    &ZenxController::NumberOfRemainingStripes   },
    {"VPD",                         &ZenxController::VPD                        },
    {"ECVersion",                   &ZenxController::ECVersion                  },
    {"ControllerFRU",               &ZenxController::ControllerFRU              },
    {"ControllerTemp",              &ZenxController::ControllerTemp             },
    {"ControllerBatteryStatus",     &ZenxController::ControllerBatteryStatus    },
    {"ControllerBatteryOverTemp",   &ZenxController::ControllerBatteryOverTemp  },
    {"ControllerBatteryCapacity",   &ZenxController::ControllerBatteryCapacity  },
    {"ControllerBatteryFRU",        &ZenxController::ControllerBatteryFRU       },
    {"BatteryTimeRemaining",        &ZenxController::BatteryTimeRemaining       },
};

constexpr FedProperty kLogicalDisks[] = {
    {"AccessBlocked",      &ZenxLogicalDevice::AccessBlocked     },
    {"LogicalDriveNum",    &ZenxLogicalDevice::LogicalDriveNum   },
    {"LogicalDriveStatus", &ZenxLogicalDevice::LogicalDriveStatus},
    {"NumOfChunks",        &ZenxLogicalDevice::NumOfChunks       },
    {"NumOfSegments",      &ZenxLogicalDevice::NumOfSegments     },
    {"PartOfArray",        &ZenxLogicalDevice::PartOfArray       },
    {"PartOfMergeGroup",   &ZenxLogicalDevice::PartOfMergeGroup  },
    {"RaidLevel",          &ZenxLogicalDevice::RaidLevel         },
    {"Size",               &ZenxLogicalDevice::Size              },
    {"StripeUnitSize",     &ZenxLogicalDevice::StripeUnitSize    },
    {"StripeOrder",        &ZenxLogicalDevice::StripeOrder       },
    {"WriteCacheStatus",   &ZenxLogicalDevice::WriteCacheStatus  },
    {"WriteCacheSetting",  &ZenxLogicalDevice::WriteCacheSetting },
    {"Partitioned",        &ZenxLogicalDevice::Partitioned       },
    {"LogicalDriveName",   &ZenxLogicalDevice::LogicalDriveName  },
    {"ReadCacheStatus",    &ZenxLogicalDevice::ReadCacheStatus   },
    {"DriveList",          &ZenxLogicalDevice::DriveList         },
    {"DefunctSegments",    &ZenxLogicalDevice::DefunctSegments   },
};

constexpr FedProperty kDiskGroups[] = {
    {"Array",       &ArrayStripeOrder::Array      },
    {"StripeOrder", &ArrayStripeOrder::StripeOrder},
};

constexpr FedProperty kDiskDrives[] = {
    {"DeviceID",         &ZenxPhysicalDevice::DeviceIdSuffix  },
    {"Channel",          &ZenxPhysicalDevice::Channel         },
    {"DeviceNumber",     &ZenxPhysicalDevice::DeviceNumber    },
    {"ScsiId",           &ZenxPhysicalDevice::ScsiId          },
    {"DeviceType",       &ZenxPhysicalDevice::DeviceType      },
    {"PFA",              &ZenxPhysicalDevice::PFA             },
    {"State",            &ZenxPhysicalDevice::State           },
    {"Size",             &ZenxPhysicalDevice::Size            },
    {"DeviceCode",       &ZenxPhysicalDevice::DeviceCode      },
    {"DeviceSerialNum",  &ZenxPhysicalDevice::DeviceSerialNum },
    {"FRU",              &ZenxPhysicalDevice::FRU             },
    {"Firmware",         &ZenxPhysicalDevice::Firmware        },
    {"Vendor",           &ZenxPhysicalDevice::Vendor          },
    {"Model",            &ZenxPhysicalDevice::Model           },
    {"Enclosure",        &ZenxPhysicalDevice::Enclosure       },
    {"TransferSpeed",    &ZenxPhysicalDevice::TransferSpeed   },
    {"ReportedChannel",  &ZenxPhysicalDevice::ReportedChannel },
    {"WorldWideName",    &ZenxPhysicalDevice::WorldWideName   },
    {"WriteCache",       &ZenxPhysicalDevice::WriteCache      },
    {"Type",             &ZenxPhysicalDevice::Type            },
    {"EnclosureId",      &ZenxPhysicalDevice::EnclosureId     },
    {"ReportedESD",      &ZenxPhysicalDevice::ReportedESD     },
    {"ReportedLocation", &ZenxPhysicalDevice::ReportedLocation},
    {"Supported",        &ZenxPhysicalDevice::Supported       },
};

constexpr FedProperty kBadStripes[] = {
    {"LogicalDrive", &ZenxBstData::LogicalDrive},
};

constexpr FedProperty kSubStatus[] = {
    {"ControllerNum", &ZenxSubStatData::ControllerNum},
    {"Channel",       &ZenxSubStatData::Channel      },
    {"ScsiId",        &ZenxSubStatData::ScsiId       },
    {"Params",        &ZenxSubStatData::Params       },
    {"Req_Off",       &ZenxSubStatData::Req_Off      },
    {"Max_Txer_P",    &ZenxSubStatData::Max_Txer_P   },
    {"Cur_Txer_p",    &ZenxSubStatData::Cur_Txer_p   },
};

constexpr FedProperty kSoftEvents[] = {
    {"HexSoftEvent", &ZenxEventSoftData::LogTitle},
};

constexpr FedProperty kHardEvents[] = {
    {"HexHardEvent", &ZenxEventHardData::LogTitle},
};

constexpr FedProperty kFirmware[] = {
    {"Version", &ZenxController::FirmwareVersion},
};

constexpr FedProperty kBootBlocks[] = {
    {"Version", &ZenxController::BootBlockVersion},
};

constexpr FedProperty kBios[] = {
    {"Version", &ZenxController::BiosVersion},
    {"Version", &ZenxHrConfBios::BIOS       },
};

struct FedClass {
  std::string_view className;
  std::span<const FedProperty> properties;
};

constexpr FedClass kClasses[] = {
    {"KVRSG_zxSCSIProtocolController", kControllers },
    {"KVRSG_zxLogicalDisk",            kLogicalDisks},
    {"KVRSG_zxDiskGroup",              kDiskGroups  },
    {"KVRSG_zxDiskDrive",              kDiskDrives  },
    {"KVRSG_BadStripeData",            kBadStripes  },
    {"KVRSG_zxSCSISubStatData",        kSubStatus   },
    {"KVRSG_LogRecord_SoftEvent",      kSoftEvents  },
    {"KVRSG_LogRecord_HardEvent",      kHardEvents  },
    {"KVRSG_zxFirmwareVersion",        kFirmware    },
    {"KVRSG_zxBootBlockVersion",       kBootBlocks  },
    {"KVRSG_zxBiosVersion",            kBios        },
};

// Adds the labels whose values go to the field.
template <class Record>
void AddLabels(std::vector<LabelSource>& sources, std::span<const AnswerLabels> answers, std::string Record::*field) {
  for (const AnswerLabels& each : answers) {
    const auto* const table = std::get_if<LabelTable<Record>>(&each.labels);
    if (table == nullptr) continue;
    for (const auto& row : *table) {
      if (row.field == field) sources.push_back({row.label, &each});
    }
  }
}

// Each label once, in quotes.
std::string InQuotes(const std::vector<LabelSource>& sources) {
  std::string quoted;
  for (auto each = sources.begin(); each != sources.end(); ++each) {
    if (std::find_if(sources.begin(), each, [&](const auto& one) { return one.label == each->label; }) != each)
      continue;
    quoted.append(quoted.empty() ? "\"" : ", \"").append(each->label).append("\"");
  }
  return quoted;
}

std::span<const FedProperty> FedPropertiesOf(std::string_view className) {
  const auto* const found = std::ranges::find(kClasses, className, &FedClass::className);
  return found == std::end(kClasses) ? std::span<const FedProperty>() : found->properties;
}

}  // namespace

std::vector<LabelSource> LabelsOf(const KnownTool& tool, std::string_view className, std::string_view property) {
  std::vector<LabelSource> sources;
  for (const FedProperty& fed : FedPropertiesOf(className)) {
    if (fed.property != property) continue;
    std::visit([&](const auto field) { AddLabels(sources, tool.labels, field); }, fed.field);
  }
  return sources;
}

std::vector<std::string> OriginLines(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration) {
  std::vector<std::string> lines;
  for (const KnownTool& known : kKnownTools) {
    const std::vector<LabelSource> sources = LabelsOf(known, className, declaration.name);
    if (!sources.empty()) lines.push_back(std::string(known.tool.name) + ": " + InQuotes(sources));
  }
  if (!declaration.origin.empty()) lines.emplace_back(declaration.origin);
  return lines;
}

std::vector<std::string> MappingStrings(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration) {
  std::vector<std::string> strings;
  for (const KnownTool& known : kKnownTools) {
    for (const LabelSource& source : LabelsOf(known, className, declaration.name)) {
      const std::string mapping = fmt::format("Label.KVRSG|{}|{}", known.tool.name, source.label);
      if (std::ranges::count(strings, mapping) == 0) strings.push_back(mapping);  // several answers contain one label
    }
  }
  if (!declaration.origin.empty()) strings.push_back(fmt::format("Words.KVRSG|{}", declaration.origin));
  return strings;
}

}  // namespace hxahost
