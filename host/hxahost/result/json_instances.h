#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// Instances of a result as the host holds them, for what works on those.
struct JsonInstances {
  InstanceList instances;
  std::vector<std::size_t> places;  // of each among the instances of the result
};

// Those of the classes, in their order. References, and properties that the schema does not know or that are of
// another type there, are left out: another version may have written the result.
JsonInstances MakeInstances(const JsonResult& result, std::span<const std::string_view> classes);

}  // namespace hxahost
