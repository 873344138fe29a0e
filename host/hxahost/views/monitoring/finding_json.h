#pragma once

#include <nlohmann/json.hpp>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// A finding as "hxahost health --format json" writes it. Texts that are not UTF-8 are read as ISO 8859-1.
nlohmann::ordered_json FindingJson(const Finding& finding);

// The same for an incident of the machine.
nlohmann::ordered_json IncidentJson(const Machine& machine, const Incident& incident);

}  // namespace hxahost
