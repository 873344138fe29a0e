#include "host/hxahost/fleet/judged_result.h"

#include <algorithm>
#include <utility>

#include "host/hxahost/result/json_instances.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/schema/class_names.h"

namespace hxahost {

namespace {

bool HasClass(const JsonResult& read, std::string_view className) {
  return std::ranges::find(read.instances, className, &ResultInstance::className) != read.instances.end();
}

}  // namespace

JudgedResult JudgeResult(std::string source, JsonResult read, const Limits& limits,
                         std::span<const std::string_view> classes) {
  JudgedResult judged{std::move(source), std::move(read), {}, {}, {}};
  const bool isWhole = HasClass(judged.read, kRawDataClass);
  judged.header.machine = judged.read.machine;
  if (SecondsSince1970(judged.read.time)) judged.header.time = NKVRHXA20::TCIMDateTime(judged.read.time);
  judged.header.isReplayed = judged.read.isReplayed;
  judged.header.isMasked = judged.read.isMasked;
  judged.header.limits = limits;
  for (const std::string_view each : classes) {
    if (isWhole || HasClass(judged.read, each)) judged.header.classes.emplace_back(each);
  }
  // Only the first query reports that no tool was run.
  judged.result.number = judged.read.runs ? 1 : 2;
  judged.result.instances = MakeInstances(judged.read, classes).instances;
  judged.result.log = judged.read.log;
  if (judged.read.runs) judged.result.runs = *judged.read.runs;
  judged.machine = BuildMachine(judged.header, judged.result);
  return judged;
}

Severity StateOf(const Machine& machine) {
  const Severity worst = WorstOf(machine.findings);
  return machine.controllers.empty() && worst == Severity::kFine ? Severity::kUnknown : worst;
}

}  // namespace hxahost
