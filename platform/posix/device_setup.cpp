#include "platform/device_setup.h"

std::string LookupSlotDevice(HostHandle, unsigned) { return {}; }
