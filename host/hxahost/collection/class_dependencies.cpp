#include "host/hxahost/collection/class_dependencies.h"

#include <algorithm>

#include "host/hxahost/schema/class_names.h"

namespace hxahost {

namespace {

constexpr std::string_view kBootBlockClass = "KVRSG_zxBootBlockVersion";
constexpr std::string_view kBiosClass = "KVRSG_zxBiosVersion";
constexpr std::string_view kDriveFirmwareClass = "KVRSG_zxDiskDriveVersion";

}  // namespace

std::span<const ClassDependency> ClassDependencies() {
  static const ClassDependency kDependencies[] = {
      {kBadStripesClass,                            {kLogicalDiskClass}                   },
      {"KVRSG_zxProtocolControllerForUnit",         {kControllerClass, kLogicalDiskClass} },
      {"KVRSG_zxProtocolControllerForPhysicalDisk", {kControllerClass, kDiskDriveClass}   },
      {"KVRSG_zxStripeOrderForController",          {kControllerClass, kDiskGroupClass}   },
      {"KVRSG_zxFirmwareOnController",              {kControllerClass, kFirmwareClass}    },
      {"KVRSG_zxBootBlockOnController",             {kControllerClass, kBootBlockClass}   },
      {"KVRSG_zxFirmwareOnDiskDrive",               {kDiskDriveClass, kDriveFirmwareClass}},
      {"KVRSG_zxBiosOnController",                  {kControllerClass, kBiosClass}        },
      {"KVRSG_ElementZxScsiDeviceData",             {kDiskDriveClass, kDeviceErrorsClass} },
      {"KVRSG_ElementBadStripeData",                {kLogicalDiskClass, kBadStripesClass} },
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
