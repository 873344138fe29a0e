#pragma once

#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace hrconf {

// Fills the device from the lines below "Device #N", on which the scanner is, and leaves the scanner on the last of
// them. A text that ends before the device does leaves the fields that it has.
void ParsePhysicalDevice(ZenxPhysicalDevice& device, CollectedData& text, std::string_view controllerNumber,
                         std::string_view channel, std::string_view deviceName);

}  // namespace hrconf
