#include "host/hxahost/machine/baseline_partners.h"

#include <algorithm>
#include <string>

#include <fmt/core.h>

#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// Results contain UTF-8, utilities print bytes.
std::string SerialOf(const Controller& controller) {
  return controller.units.empty() ? "" : AsUtf8(controller.units.front().serialNumber);
}

bool IsSame(const Controller& before, const Controller& now) {
  const std::string serial = SerialOf(before);
  return !serial.empty() && serial == SerialOf(now);
}

// A controller that was not published has no serial number.
bool HasSameLabel(const Controller& before, const Controller& now) {
  const bool isSilent = before.units.empty() || now.units.empty();
  return before.label == now.label && (isSilent || (SerialOf(before).empty() && SerialOf(now).empty()));
}

// The same model without a serial number, under another number.
bool IsAlike(const Controller& before, const Controller& now) {
  return !before.units.empty() && !now.units.empty() && SerialOf(before).empty() && SerialOf(now).empty() &&
         before.tool == now.tool && AsUtf8(before.units.front().model) == AsUtf8(now.units.front().model);
}

// The serial number, or the place; the controller is its place now.
std::string KeyOf(const Device& disk, std::optional<std::size_t> controller) {
  if (!disk.serialNumber.empty()) return "S/N " + AsUtf8(disk.serialNumber);
  return controller ? fmt::format("{}: {},{}", *controller, disk.channel, disk.id) : "";
}

}  // namespace

BaselinePartners::BaselinePartners(const std::vector<Controller>& before, const std::vector<Controller>& now)
    : controllers(before.size()), before_(before), now_(now) {
  FindControllers();
  FindDisks();
}

void BaselinePartners::FindControllers() {
  std::vector<bool> isTaken(now_.size());
  for (const auto isPartner : {IsSame, HasSameLabel, IsAlike}) {
    for (std::size_t place = 0; place < before_.size(); ++place) {
      for (std::size_t other = 0; other < now_.size() && !controllers[place]; ++other) {
        if (isTaken[other] || !isPartner(before_[place], now_[other])) continue;
        controllers[place] = other;
        isTaken[other] = true;
      }
    }
  }
}

// Of several disks with one serial number, the one that kept its place comes first.
void BaselinePartners::FindDisks() {
  std::multimap<std::string, Key> found;
  for (std::size_t place = 0; place < now_.size(); ++place) {
    for (std::size_t device = 0; device < now_[place].devices.size(); ++device) {
      const Device& each = now_[place].devices[device];
      if (each.kind == HardwareKind::kDisk) found.emplace(KeyOf(each, place), Key{place, device});
    }
  }
  for (std::size_t place = 0; place < before_.size(); ++place) {
    for (std::size_t device = 0; device < before_[place].devices.size(); ++device) {
      const Device& each = before_[place].devices[device];
      if (each.kind != HardwareKind::kDisk) continue;
      const auto [first, last] = found.equal_range(KeyOf(each, controllers[place]));
      if (first == last) continue;
      const auto kept = std::find_if(first, last, [&](const auto& entry) {
        const auto& [controller, index] = entry.second;
        return controllers[place] == controller && now_[controller].devices[index].location == each.location;
      });
      const auto chosen = kept == last ? first : kept;
      disks_[{place, device}] = chosen->second;
      disksBefore_[chosen->second] = {place, device};
      found.erase(chosen);
    }
  }
}

std::optional<DeviceRef> BaselinePartners::DiskOf(const DeviceRef& before) const {
  const auto found = disks_.find({before.controller, before.device});
  if (found == disks_.end()) return std::nullopt;
  return DeviceRef{found->second.first, found->second.second};
}

bool BaselinePartners::IsNewDisk(const DeviceRef& now) const {
  return now_[now.controller].devices[now.device].kind == HardwareKind::kDisk &&
         !disksBefore_.contains({now.controller, now.device});
}

}  // namespace hxahost
