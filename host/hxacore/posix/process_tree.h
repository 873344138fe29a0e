#pragma once

#include "host/hxacore/posix/child_process.h"

namespace NKVRHXA20 {

// Ends the program and all that it has started, also what left its process group, lost its parent or both. Gives up
// after some seconds on a process that the kernel cannot end, as one that waits for a broken controller.
void EndProcessTree(const ChildProcess& child);

}  // namespace NKVRHXA20
