#pragma once

#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// A result that was read from a file, with the findings and incidents of the rules.
struct JudgedResult {
  std::string source;  // the file
  JsonResult read;
  QueryHeader header;
  QueryResult result;
  Machine machine;
};

// Judges the instances of the classes. A result does not contain the queried classes: if it has raw texts, every class
// was queried; otherwise, the classes that it has.
JudgedResult JudgeResult(std::string source, JsonResult read, const Limits& limits,
                         std::span<const std::string_view> classes);

// The worst severity of the findings; unknown if no object was found at all.
Severity StateOf(const Machine& machine);

}  // namespace hxahost
