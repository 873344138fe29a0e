#pragma once

class CollectedData;
struct ZenxController;

namespace arcconf {

// Each finds its section in the answer to "getconfig" and attaches what it lists to the controller. A section that is
// not there attaches nothing. Each throws std::out_of_range where the text ends before the section does; what was read
// by then is attached.

// With the stripe order of each.
void ReadLogicalDrives(ZenxController& controller, CollectedData& text);

void ReadPhysicalDevices(ZenxController& controller, CollectedData& text);

}  // namespace arcconf
