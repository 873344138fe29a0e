#pragma once

#include <string>
#include <string_view>

#include "collect/records.h"

// The names under which instances are published. Associations find their ends by them, so each is built here alone.

// "Zentraxis1"
std::string ControllerId(const ZenxController& controller);

// "Zentraxis1LD2"
std::string LogicalDiskId(const ZenxController& controller, const ZenxLogicalDevice& drive);

// "C1 CH0 I03:" and the drive's own ending. A channel or target that is no number counts as 0.
std::string DiskDriveId(const ZenxController& controller, const ZenxPhysicalDevice& drive);

// "1-C1 CH0 I03:...", the software on the drive with that identifier.
std::string DriveSoftwareId(std::string_view controllerNumber, std::string_view diskDriveId);

// "Zentraxis1 Firmware"
std::string FirmwareName(std::string_view controllerNumber);

// "Zentraxis Boot Block": the one name without the controller's number.
std::string BootBlockName(std::string_view controllerNumber);

// "Zentraxis1 BIOS"
std::string BiosName(std::string_view controllerNumber);

// "Zentraxis:1LD2"
std::string BadStripeId(std::string_view controllerNumber, std::string_view logicalDrive);

// "Zentraxis:1C0S3"
std::string DeviceDataId(std::string_view controllerNumber, std::string_view channel, std::string_view scsiId);
