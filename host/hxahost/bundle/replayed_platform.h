#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/hxahost/bundle/bundle.h"
#include "host/hxahost/system/private_file.h"

namespace hxahost {

// While it lives, plug-ins are told of system, registry and RAID manager's log what a bundle says: through the
// environment, and through a file that no one else sees and that is gone however the program ends.
class ReplayedPlatform {
 public:
  explicit ReplayedPlatform(const Bundle& bundle);
  ~ReplayedPlatform();
  ReplayedPlatform(const ReplayedPlatform&) = delete;
  ReplayedPlatform& operator=(const ReplayedPlatform&) = delete;

 private:
  void Set(const char* name, const std::optional<std::string>& value);

  std::vector<std::pair<const char*, std::optional<std::string>>> before_;
  std::optional<PrivateFile> log_;
};

}  // namespace hxahost
