#pragma once

class CollectedData;
struct ZenxController;

namespace qcmdrun {

// Fills what the answer to "getstatus" says of the controller's operation in progress.
void ParseStatus(ZenxController& controller, CollectedData& text);

}  // namespace qcmdrun
