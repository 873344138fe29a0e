#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Finds the objects that a machine has at both of two times. Controller numbers change when a controller is removed,
// and disks are moved, so serial numbers are compared first. Objects without one are recognised by their place.
class BaselinePartners {
 public:
  BaselinePartners(const std::vector<Controller>& before, const std::vector<Controller>& now);

  std::vector<std::optional<std::size_t>> controllers;  // by their places before; empty: the controller is gone

  // The place now of a disk that was there before.
  std::optional<DeviceRef> DiskOf(const DeviceRef& before) const;

  // Whether the device is a disk that was not there before.
  bool IsNewDisk(const DeviceRef& now) const;

 private:
  using Key = std::pair<std::size_t, std::size_t>;  // controller and device

  void FindControllers();
  void FindDisks();

  const std::vector<Controller>& before_;
  const std::vector<Controller>& now_;
  std::map<Key, Key> disks_;        // the key now by the key before
  std::map<Key, Key> disksBefore_;  // the key before by the key now
};

}  // namespace hxahost
