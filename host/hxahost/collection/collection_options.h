#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "host/hxahost/bundle/mask_places.h"
#include "host/hxahost/collection/run_limits.h"
#include "platform/ordinary_file.h"
#include "plugin/host_interface/date_time.h"

namespace hxahost {

// More time than most collections take, and less than five minutes, the time between two jobs of a timer.
inline constexpr std::chrono::seconds kUsualWait{240};

// The options of a collection. An empty path was not given; others are absolute, except "-", a standard stream.
struct CollectionOptions {
  std::filesystem::path plugin;     // empty: zenx.pi beside the program
  std::filesystem::path directory;  // the working directory of the tools
  std::filesystem::path log;
  std::filesystem::path record;              // the bundle to write
  std::optional<MaskScope> mask;             // hidden in it
  std::filesystem::path replay;              // the bundle to replay
  std::uint64_t inputLimit = kLargestInput;  // of a file that is read, in bytes
  std::optional<std::uint16_t> osType;
  bool hasOsType = false;  // the option was given; it may be "none"
  std::optional<std::string> machineName;
  std::optional<NKVRHXA20::TCIMDateTime> localTime;
  bool showProgress = true;
  std::chrono::seconds longestWait = kUsualWait;  // for another program that collects
  RunLimits limits = {};
};

}  // namespace hxahost
