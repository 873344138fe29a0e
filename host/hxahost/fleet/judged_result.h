#pragma once

#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/machine/machine.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/result/query_result.h"

namespace hxahost {

// A result that was read back, with what the rules make of it.
struct JudgedResult {
  std::string source;  // the file
  JsonResult read;
  QueryHeader header;
  QueryResult result;
  Machine machine;
};

// Judges the instances of the classes. A result does not say what was asked for: where it has raw texts all of it was,
// else the classes that it has.
JudgedResult JudgeResult(std::string source, JsonResult read, const Limits& limits,
                         std::span<const std::string_view> classes);

// The worst of the findings; where nothing was found at all, not known.
Severity StateOf(const Machine& machine);

}  // namespace hxahost
