#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

struct JsonResult;

// The minimum that a machine must have: less is a fault.
struct Expectations {
  std::vector<std::string> tools;              // utilities that must be installed
  std::optional<unsigned> controllers;         // at least this number
  std::optional<unsigned> disks;               // the same
  std::shared_ptr<const JsonResult> baseline;  // an earlier result of the machine; null: none
};

inline bool IsExpected(const Expectations& expectations, std::string_view tool) {
  return std::ranges::find(expectations.tools, tool) != expectations.tools.end();
}

}  // namespace hxahost
