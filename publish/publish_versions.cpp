#include "publish/publish_versions.h"

#include <span>

#include "collect/ascii_text.h"
#include "publish/identifiers.h"
#include "publish/property_table.h"
#include "publish/version_split.h"

using namespace NKVRHXA20;

namespace {

// One piece of software, as it is published.
struct SoftwareVersion {
  std::string Name;
  std::string Version;
  std::string BuildNumber;
  std::string SoftwareElementID;
  std::string Manufacturer;
};

constexpr unsigned short kStateRunning = 3;
constexpr unsigned short kTargetNotApplicable = 66;

constexpr Property<SoftwareVersion> kHardDiskVersionProperties[] = {
    {"Name",                  &SoftwareVersion::Name             },
    {"Version",               &SoftwareVersion::Version          },
    {"BuildNumber",           &SoftwareVersion::BuildNumber      },
    {"SoftwareElementState",  kStateRunning                      },
    {"SoftwareElementID",     &SoftwareVersion::SoftwareElementID},
    {"TargetOperatingSystem", kTargetNotApplicable               },
    {"Manufacturer",          &SoftwareVersion::Manufacturer     },
};

// Only hard disks say who made them.
constexpr auto kVersionProperties = std::span(kHardDiskVersionProperties).first<6>();

// What a device type contains when its firmware is published, and as what. Each row is tested for itself.
struct DriveKind {
  std::string_view type;
  const char* name;
  PropertyRows<SoftwareVersion> properties;
};

constexpr DriveKind kDriveKinds[] = {
    {"Hard",      "Zentraxis Disk", kHardDiskVersionProperties},
    {"Unknown",   "Unknown ",       kVersionProperties        }, // the blank belongs to the name
    {"Enclosure", "Enclosure",      kVersionProperties        },
};

// The text is published whole, with the build also by itself.
void PublishControllerVersions(const PublishContext& context, ICIMClass& publishedClass,
                               std::string ZenxController::*text, std::string (*name)(std::string_view)) {
  for (const auto& controller : context.collector.GetControllers()) {
    const std::string_view version = Trimmed((*controller).*text);
    if (version.empty()) continue;
    const std::string_view number = Trimmed(controller->ControllerNum);
    const SoftwareVersion software{name(number), std::string(version), std::string(SplitVersion(version).build),
                                   std::string(number), ""};
    PublishAsHeld(publishedClass, kVersionProperties, software);
  }
}

// A drive's version is published without its build.
SoftwareVersion FirmwareOf(const ZenxController& controller, const ZenxPhysicalDevice& drive, const char* name) {
  const auto [version, build] = SplitVersion(Trimmed(drive.Firmware));
  return {name, std::string(version), std::string(build),
          DriveSoftwareId(Trimmed(controller.ControllerNum), DiskDriveId(controller, drive)),
          std::string(Trimmed(drive.Vendor))};
}

void PublishDriveVersion(ICIMClass& publishedClass, const ZenxController& controller, const ZenxPhysicalDevice& drive) {
  if (Trimmed(drive.Firmware).empty()) return;
  for (const auto& [type, name, properties] : kDriveKinds) {
    if (Contains(drive.DeviceType, type)) {
      PublishAsHeld(publishedClass, properties, FirmwareOf(controller, drive, name));
    }
  }
}

}  // namespace

void PublishFirmwareVersions(const PublishContext& context, ICIMClass& publishedClass) {
  PublishControllerVersions(context, publishedClass, &ZenxController::FirmwareVersion, FirmwareName);
}

void PublishBootBlockVersions(const PublishContext& context, ICIMClass& publishedClass) {
  PublishControllerVersions(context, publishedClass, &ZenxController::BootBlockVersion, BootBlockName);
}

void PublishBiosVersions(const PublishContext& context, ICIMClass& publishedClass) {
  PublishControllerVersions(context, publishedClass, &ZenxController::BiosVersion, BiosName);
}

void PublishDiskDriveVersions(const PublishContext& context, ICIMClass& publishedClass) {
  for (const auto& controller : context.collector.GetControllers()) {
    for (const auto& drive : controller->PhysicalDevices) PublishDriveVersion(publishedClass, *controller, *drive);
  }
}
