#pragma once

#include <string>

#include "collect/host_handle.h"

// The device instance identifier, of at most 99 characters, of the device in a slot: of all present devices whose UI
// number is the slot's, the last one that has an identifier. "" where there is none, where the devices cannot be
// listed (which is logged), and on systems without device setup.
std::string LookupSlotDevice(HostHandle host, unsigned slotNumber);
