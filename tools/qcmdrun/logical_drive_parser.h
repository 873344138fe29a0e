#pragma once

#include <string_view>

class CollectedData;
struct ZenxLogicalDevice;

namespace qcmdrun {

// Fills the drive from the lines after its "Logical drive number" line, which is current; the last line read is
// current afterwards. Throws std::out_of_range where the text ends before the block does.
void ParseLogicalDrive(ZenxLogicalDevice& drive, CollectedData& text, std::string_view controllerNumber,
                       std::string_view driveNumber);

}  // namespace qcmdrun
