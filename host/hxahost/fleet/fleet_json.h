#pragma once

#include <nlohmann/json.hpp>

#include "host/hxahost/fleet/fleet_view.h"

namespace hxahost {

// The JSON that WriteFleetJson writes.
nlohmann::ordered_json FleetJson(const FleetView& view);

}  // namespace hxahost
