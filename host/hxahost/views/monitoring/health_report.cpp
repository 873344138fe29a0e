#include "host/hxahost/views/monitoring/health_report.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/result/answers.h"
#include "host/hxahost/schema/class_names.h"

namespace hxahost {

namespace {

std::string Counted(const Machine& machine, std::string_view className, std::string_view what) {
  const std::size_t count = CountOf(machine, className);
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

}  // namespace

std::vector<ToolHealth> ToolHealthOf(const HealthReport& report) {
  std::vector<ToolHealth> tools;
  const std::vector<std::string_view> absent = NotInstalled(report.result.runs);
  for (const std::string_view tool : KnownTools()) {
    const auto isOfTool = [tool](const ToolRun& run) { return ToolName(run.path) == tool; };
    const auto isAboutTool = [tool](const Finding& finding) {
      return finding.className == kToolRun && finding.identifier == tool;
    };
    if (std::ranges::none_of(report.result.runs, isOfTool)) continue;
    const bool isInstalled = std::ranges::find(absent, tool) == absent.end();
    tools.push_back({tool, isInstalled && std::ranges::none_of(report.machine.findings, isAboutTool), isInstalled});
  }
  return tools;
}

std::string Inventory(const Machine& machine) {
  return fmt::format("{}, {}, {}", Counted(machine, kControllerClass, "controller"),
                     Counted(machine, kLogicalDiskClass, "logical drive"), Counted(machine, kDiskDriveClass, "device"));
}

}  // namespace hxahost
