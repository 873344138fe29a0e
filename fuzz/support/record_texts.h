#pragma once

#include <string>

#include "collect/records.h"

// All that the records hold, as a text that differs where they do.
std::string TextOf(const ControllerList& controllers, const RawDataList& rawData);
