#pragma once

#include <nlohmann/json.hpp>

#include "host/hxahost/machine/finding.h"

namespace hxahost {

// A finding as "hxahost health --format json" shows it. Texts that are no UTF-8 are read as ISO 8859-1.
nlohmann::ordered_json FindingJson(const Finding& finding);

}  // namespace hxahost
