#include "host/hxahost/machine/kept_events.h"

#include <algorithm>
#include <utility>

#include <fmt/core.h>

#include "host/hxahost/machine/error_findings.h"
#include "host/hxahost/schema/class_names.h"

using NKVRHXA20::TPublishedInstance;

namespace hxahost {

bool KeptEvents::Take(const QueryHeader& header, const boost::shared_ptr<const TPublishedInstance>& instance) {
  if (instance->Class().name != kEventClass) {
    if (count_ == 0) ++before_;
    return false;
  }
  ++count_;
  held_.push_back(instance);
  if (held_.size() <= newest_) return true;
  if (IsBatteryMessage(header, *held_.front())) read_.push_back(held_.front());
  held_.pop_front();
  return true;
}

void KeptEvents::PutInto(QueryResult& result) {
  if (read_.size() + held_.size() < count_) result.events = count_;
  const auto place = result.instances.begin() + static_cast<std::ptrdiff_t>(before_);
  const auto newest = result.instances.insert(place, held_.begin(), held_.end());
  result.instances.insert(newest, read_.begin(), read_.end());
  *this = KeptEvents(newest_);
}

std::string EventNote(const QueryResult& result) {
  if (result.events == 0) return "";
  const auto shown = std::ranges::count_if(result.instances,
                                           [](const auto& instance) { return instance->Class().name == kEventClass; });
  return fmt::format("The newest {} of {} events: \"hxahost query --class events --format jsonl\" writes all of them.",
                     shown, result.events);
}

}  // namespace hxahost
