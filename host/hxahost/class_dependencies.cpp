#include "host/hxahost/class_dependencies.h"

#include <algorithm>

namespace hxahost {

namespace {

constexpr std::string_view kController = "KVRSG_zxSCSIProtocolController";
constexpr std::string_view kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr std::string_view kDiskGroup = "KVRSG_zxDiskGroup";
constexpr std::string_view kDiskDrive = "KVRSG_zxDiskDrive";
constexpr std::string_view kBadStripes = "KVRSG_BadStripeData";
constexpr std::string_view kStatistics = "KVRSG_zxSCSIDeviceData";
constexpr std::string_view kFirmware = "KVRSG_zxFirmwareVersion";
constexpr std::string_view kBootBlock = "KVRSG_zxBootBlockVersion";
constexpr std::string_view kBios = "KVRSG_zxBiosVersion";
constexpr std::string_view kDriveFirmware = "KVRSG_zxDiskDriveVersion";

}  // namespace

std::span<const ClassDependency> ClassDependencies() {
  static const ClassDependency kDependencies[] = {
      {kBadStripes,                                 {kLogicalDisk}              },
      {"KVRSG_zxProtocolControllerForUnit",         {kController, kLogicalDisk} },
      {"KVRSG_zxProtocolControllerForPhysicalDisk", {kController, kDiskDrive}   },
      {"KVRSG_zxStripeOrderForController",          {kController, kDiskGroup}   },
      {"KVRSG_zxFirmwareOnController",              {kController, kFirmware}    },
      {"KVRSG_zxBootBlockOnController",             {kController, kBootBlock}   },
      {"KVRSG_zxFirmwareOnDiskDrive",               {kDiskDrive, kDriveFirmware}},
      {"KVRSG_zxBiosOnController",                  {kController, kBios}        },
      {"KVRSG_ElementZxScsiDeviceData",             {kDiskDrive, kStatistics}   },
      {"KVRSG_ElementBadStripeData",                {kLogicalDisk, kBadStripes} },
  };
  return kDependencies;
}

std::vector<std::string> MissingDependencies(const std::vector<std::string>& classes) {
  std::vector<std::string> lines;
  for (auto asked = classes.begin(); asked != classes.end(); ++asked) {
    const auto dependency = std::ranges::find(ClassDependencies(), *asked, &ClassDependency::name);
    if (dependency == ClassDependencies().end()) continue;
    std::string missing;
    for (const std::string_view needed : dependency->builtFrom) {
      if (std::find(classes.begin(), asked, needed) != asked) continue;
      missing += (missing.empty() ? "--class " : " --class ") + std::string(needed);
    }
    if (!missing.empty()) lines.push_back(*asked + " is built from other instances: give " + missing + " before it.");
  }
  return lines;
}

}  // namespace hxahost
