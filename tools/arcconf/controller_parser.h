#pragma once

#include <string_view>

#include "collect/records.h"

namespace arcconf {

// Fills the controller from the answer to "getconfig N al" and marks it as parsed. A text without "Controller
// information" gives the number alone and no mark.
void ParseController(ZenxController& controller, std::string_view config, unsigned controllerNumber);

}  // namespace arcconf
