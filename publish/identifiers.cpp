#include "publish/identifiers.h"

#include <array>
#include <cstdio>
#include <initializer_list>

#include "collect/ascii_text.h"
#include "collect/tool_text.h"

namespace {

std::string Concatenated(std::initializer_list<std::string_view> parts) {
  std::string joined;
  for (const std::string_view part : parts) joined.append(part);
  return joined;
}

}  // namespace

std::string ControllerId(const ZenxController& controller) {
  return Concatenated({"Zentraxis", Trimmed(controller.ControllerNum)});
}

std::string LogicalDiskId(const ZenxController& controller, const ZenxLogicalDevice& drive) {
  return Concatenated({"Zentraxis", Trimmed(controller.ControllerNum), "LD", Trimmed(drive.LogicalDriveNum)});
}

std::string DiskDriveId(const ZenxController& controller, const ZenxPhysicalDevice& drive) {
  std::array<char, 48> place{};
  std::snprintf(place.data(), place.size(), " CH%d I%02d:", LeadingNumber(drive.Channel), LeadingNumber(drive.ScsiId));
  return Concatenated({"C", Trimmed(controller.ControllerNum), place.data(), Trimmed(drive.DeviceIdSuffix)});
}

std::string DriveSoftwareId(std::string_view controllerNumber, std::string_view diskDriveId) {
  return Concatenated({controllerNumber, "-", diskDriveId});
}

std::string FirmwareName(std::string_view controllerNumber) {
  return Concatenated({"Zentraxis", controllerNumber, " Firmware"});
}

std::string BootBlockName(std::string_view) { return "Zentraxis Boot Block"; }

std::string BiosName(std::string_view controllerNumber) {
  return Concatenated({"Zentraxis", controllerNumber, " BIOS"});
}

std::string BadStripeId(std::string_view controllerNumber, std::string_view logicalDrive) {
  return Concatenated({"Zentraxis:", controllerNumber, "LD", logicalDrive});
}

std::string DeviceDataId(std::string_view controllerNumber, std::string_view channel, std::string_view scsiId) {
  return Concatenated({"Zentraxis:", controllerNumber, "C", channel, "S", scsiId});
}
