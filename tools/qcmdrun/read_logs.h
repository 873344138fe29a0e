#pragma once

#include <algorithm>
#include <span>
#include <string_view>

#include "tools/qcmdrun/commands.h"

class CollectedData;
struct ZenxBstData;
struct ZenxController;

namespace qcmdrun {

// Each finds its table in the answer of one command and attaches what it lists to the controller. A table that is not
// there attaches nothing. Each throws std::out_of_range where the text ends before the table does.

using BadStripeParser = void (*)(ZenxBstData& record, const CollectedData& text, std::string_view controllerNumber);

// A line that the parser rejects with THXAException ends the table, which is logged.
void ReadBadStripes(ZenxController& controller, CollectedData& text, BadStripeParser parse);

void ReadDeviceEvents(ZenxController& controller, CollectedData& text);

// A row without a date and time ends the table, which is logged. Rows are counted from 1.
void ReadDddEvents(ZenxController& controller, CollectedData& text);

void ReadSoftEvents(ZenxController& controller, CollectedData& text);
void ReadHardEvents(ZenxController& controller, CollectedData& text);

void ReadSubStats(ZenxController& controller, CollectedData& text);

struct LogCommand {
  ToolCommand command;
  void (*read)(ZenxController& controller, CollectedData& text);
};

// Asked for after status and bad stripes, in this order.
constexpr LogCommand kLogs[] = {
    {kGetDeviceEvents, ReadDeviceEvents},
    {kGetDddEvents,    ReadDddEvents   },
    {kGetSoftEvents,   ReadSoftEvents  },
    {kGetHardEvents,   ReadHardEvents  },
    {kGetSubStats,     ReadSubStats    },
};
static_assert(std::ranges::equal(kLogs, std::span(kParsed).subspan(2), {}, &LogCommand::command));

}  // namespace qcmdrun
