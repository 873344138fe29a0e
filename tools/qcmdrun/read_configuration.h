#pragma once

class CollectedData;
struct ZenxController;

namespace qcmdrun {

// Each finds its section in the answer to "getconfig" and attaches what it lists to the controller. A section that is
// not there attaches nothing. Each throws std::out_of_range where the text ends before the section does.

void ReadLogicalDrives(ZenxController& controller, CollectedData& text);

void ReadStripeOrders(ZenxController& controller, CollectedData& text);

// Whether the answer has the section at all.
bool ReadPhysicalDevices(ZenxController& controller, CollectedData& text);

}  // namespace qcmdrun
