#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "host/hxahost/result/json_result.h"

namespace hxahost {

// Instances of a result in the host's form, for code that reads published instances.
struct JsonInstances {
  InstanceList instances;
  std::vector<std::size_t> places;  // of each among the instances of the result
};

// The instances of the classes, in their order. References, and properties that the schema does not contain or declares
// with another type, are left out, because another version may have written the result.
JsonInstances MakeInstances(const JsonResult& result, std::span<const std::string_view> classes);

}  // namespace hxahost
