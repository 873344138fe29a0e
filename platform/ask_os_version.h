#pragma once

#include "collect/host_handle.h"
#include "platform/os_version.h"

// What ask gives. One that throws is logged, and counts as a system that is not a Windows NT system.
OsVersion AskOsVersion(HostHandle host, OsVersion (*ask)());
