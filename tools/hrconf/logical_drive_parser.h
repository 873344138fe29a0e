#pragma once

#include <string_view>

#include "collect/line_scanner.h"
#include "collect/records.h"

namespace hrconf {

// Fills the drive from the lines below "Logical drive number N", on which the scanner is, and leaves the scanner on
// the last of them. A text that ends before the drive does leaves the fields that it has.
void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber);

}  // namespace hrconf
