#pragma once

#include "collect/host_handle.h"
#include "platform/os_version.h"

namespace hrconf {

// Whether this is a Windows NT system of version 6.0, where the tool is not asked for versions. A system that cannot
// say is logged and counts as another one.
bool IsOsVersion60(HostHandle host, OsVersion (*getVersion)());

}  // namespace hrconf
