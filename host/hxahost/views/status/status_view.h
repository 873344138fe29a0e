#pragma once

#include <ostream>

#include "host/hxahost/views/monitoring/health_report.h"

namespace hxahost {

// The verdict on one screen: the incidents with their actions, then one line for each controller.
void WriteStatusText(std::ostream& out, const HealthReport& report);

}  // namespace hxahost
