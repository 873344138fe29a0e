#pragma once

#include <string>

#include "collect/records.h"

// The contents of the records as a text; different records have different texts.
std::string TextOf(const ControllerList& controllers, const RawDataList& rawData);
