#pragma once

#include <string_view>

struct ZenxController;

namespace qcmdrun {

// Fills the controller from the whole answer to "getconfig". Without the line "Controller information" only the number
// is set and the controller stays unparsed.
void ParseController(ZenxController& controller, std::string_view text, unsigned number);

}  // namespace qcmdrun
