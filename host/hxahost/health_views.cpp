#include "host/hxahost/health_views.h"

#include <algorithm>
#include <iterator>

namespace hxahost {

namespace {

constexpr HealthView kViews[] = {
    {"text",       WriteHealthText   },
    {"json",       WriteHealthJson   },
    {"prometheus", WriteHealthMetrics},
};

}  // namespace

std::span<const HealthView> HealthViews() { return kViews; }

const HealthView* FindHealthView(std::string_view format) {
  const auto* const view = std::ranges::find(kViews, format, &HealthView::format);
  return view == std::end(kViews) ? nullptr : view;
}

}  // namespace hxahost
