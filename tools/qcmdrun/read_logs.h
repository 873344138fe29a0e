#pragma once

#include <string_view>

class CollectedData;
struct ZenxBstData;
struct ZenxController;

namespace qcmdrun {

// Each finds its table in the answer of one command and attaches what it lists to the controller. A table that is not
// there attaches nothing. Each throws std::out_of_range where the text ends before the table does.

using BadStripeParser = void (*)(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber);

// A line that the parser rejects with THXAException ends the table, which is logged.
void AttachBadStripes(ZenxController& controller, CollectedData& text, BadStripeParser parse);

void AttachDeviceEvents(ZenxController& controller, CollectedData& text);

// A row without a date and time ends the table, which is logged. Rows are counted from 1.
void AttachDddEvents(ZenxController& controller, CollectedData& text);

void SetSoftEvents(ZenxController& controller, CollectedData& text);
void SetHardEvents(ZenxController& controller, CollectedData& text);

void AttachSubStats(ZenxController& controller, CollectedData& text);

}  // namespace qcmdrun
