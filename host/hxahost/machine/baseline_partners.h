#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "host/hxahost/machine/machine.h"

namespace hxahost {

// Which objects of a machine are the same at two times. Numbers of controllers change when one is taken out, and disks
// are moved: serial numbers tell more. What has none is recognised by its place.
class BaselinePartners {
 public:
  BaselinePartners(const std::vector<Controller>& before, const std::vector<Controller>& now);

  std::vector<std::optional<std::size_t>> controllers;  // by their places before; none: it is not there any more

  // Where the disk of before is now.
  std::optional<DeviceRef> DiskOf(const DeviceRef& before) const;

  // Whether the device of now is a disk that was not there before.
  bool IsNewDisk(const DeviceRef& now) const;

 private:
  using Key = std::pair<std::size_t, std::size_t>;  // controller and device

  void FindControllers();
  void FindDisks();

  const std::vector<Controller>& before_;
  const std::vector<Controller>& now_;
  std::map<Key, Key> disks_;        // those of now by those of before
  std::map<Key, Key> disksBefore_;  // the other way
};

}  // namespace hxahost
