#pragma once

#include "collect/host_handle.h"

namespace arcconf {

// Tells the person at the machine, in one line and in full, that driver and firmware of a controller do not match.
void LogDriverMismatch(HostHandle host);

}  // namespace arcconf
