#pragma once

#include <string>
#include <unordered_map>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// The name of an object for people. Texts are printable.
struct ObjectName {
  std::string name;  // "C4 enclosure 0, slot 8", "C4 \"Archive\" (RAID 5)", "C1 channel 1, ID 4"; "" without one
  std::string serialNumber;  // of a disk
};

// By the instances of the result, which must outlive it; only instances that have a name.
using ObjectNames = std::unordered_map<const ResultInstance*, ObjectName>;
ObjectNames NameObjects(const JsonResult& result);

}  // namespace hxahost
