#pragma once

#include <string_view>

class CollectedData;
struct ZenxPhysicalDevice;

namespace qcmdrun {

// Fills the device from the lines after its "Target" line, which is current; the last line read is current
// afterwards. Throws std::out_of_range where the text ends before the block does.
void ParsePhysicalDevice(ZenxPhysicalDevice& device, CollectedData& text, std::string_view controllerNumber,
                         std::string_view channel);

}  // namespace qcmdrun
