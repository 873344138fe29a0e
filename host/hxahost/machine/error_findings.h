#pragma once

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Warnings about errors that utilities count on disks, disks that transfer too slowly, and logged messages about
// batteries. Each value has a limit, at which its warning begins; one that is not a number is unknown.
Findings ErrorFindings(const QueryHeader& header, const InstanceList& instances);

// Whether the RAID manager's event is about a battery, more severe than information, and recent.
bool IsBatteryMessage(const QueryHeader& header, const NKVRHXA20::TPublishedInstance& event);

}  // namespace hxahost
