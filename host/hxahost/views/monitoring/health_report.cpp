#include "host/hxahost/views/monitoring/health_report.h"

#include <algorithm>
#include <iterator>

namespace hxahost {

namespace {

constexpr HealthView kHealthViews[] = {
    {"text",       WriteHealthText   },
    {"json",       WriteHealthJson   },
    {"prometheus", WriteHealthMetrics},
};

}  // namespace

std::span<const HealthView> HealthViews() { return kHealthViews; }

const HealthView* FindHealthView(std::string_view format) {
  const auto* const view = std::ranges::find(kHealthViews, format, &HealthView::format);
  return view == std::end(kHealthViews) ? nullptr : view;
}

}  // namespace hxahost
