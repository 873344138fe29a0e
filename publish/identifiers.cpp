#include "publish/identifiers.h"

#include <fmt/core.h>

#include "collect/ascii_text.h"
#include "collect/tool_text.h"

std::string ControllerId(const ZenxController& controller) {
  return fmt::format("Zentraxis{}", Trimmed(controller.ControllerNum));
}

std::string LogicalDiskId(const ZenxController& controller, const ZenxLogicalDevice& drive) {
  return fmt::format("Zentraxis{}LD{}", Trimmed(controller.ControllerNum), Trimmed(drive.LogicalDriveNum));
}

std::string DiskDriveId(const ZenxController& controller, const ZenxPhysicalDevice& drive) {
  return fmt::format("C{} CH{} I{:02}:{}", Trimmed(controller.ControllerNum), LeadingNumber(drive.Channel),
                     LeadingNumber(drive.ScsiId), Trimmed(drive.DeviceIdSuffix));
}

std::string DriveSoftwareId(std::string_view controllerNumber, std::string_view diskDriveId) {
  return fmt::format("{}-{}", controllerNumber, diskDriveId);
}

std::string FirmwareName(std::string_view controllerNumber) {
  return fmt::format("Zentraxis{} Firmware", controllerNumber);
}

std::string BootBlockName(std::string_view) { return "Zentraxis Boot Block"; }

std::string BiosName(std::string_view controllerNumber) { return fmt::format("Zentraxis{} BIOS", controllerNumber); }

std::string BadStripeId(std::string_view controllerNumber, std::string_view logicalDrive) {
  return fmt::format("Zentraxis:{}LD{}", controllerNumber, logicalDrive);
}

std::string DeviceDataId(std::string_view controllerNumber, std::string_view channel, std::string_view scsiId) {
  return fmt::format("Zentraxis:{}C{}S{}", controllerNumber, channel, scsiId);
}
