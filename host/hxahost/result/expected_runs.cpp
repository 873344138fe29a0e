#include "host/hxahost/result/expected_runs.h"

#include <algorithm>
#include <string>

#include "tools/known_tools.h"

namespace hxahost {

namespace {

// The answer that shows whether there is a controller of this number; null if there is none yet.
const ToolRun* FirstAnswer(const Tool& tool, const ToolRunList& runs, unsigned number) {
  const auto run = std::ranges::find_if(runs, [&](const ToolRun& each) {
    return each.path == tool.path && each.arguments.size() > 1 && each.arguments[0] == kGetConfig.command &&
           each.arguments[1] == std::to_string(number);
  });
  return run == runs.end() ? nullptr : &*run;
}

// Each of the two passes first requests each number.
std::size_t RunsByAnswers(const Tool& tool, const ToolRunList& runs) {
  std::size_t expected = 0;
  for (unsigned number = 1; number <= kLastControllerNumber; ++number) {
    expected += 2;
    const ToolRun* const answer = FirstAnswer(tool, runs, number);
    if (answer == nullptr) continue;
    if (answer->outcome != Outcome::kRefused) {
      expected += tool.recorded.size() + tool.parsed.size();
    } else if (answer->failure.find(tool.noneFound) != std::string::npos) {
      break;
    }
  }
  return expected;
}

}  // namespace

std::size_t ExpectedRuns(const ToolRunList& runs) {
  std::size_t expected = 0;
  std::size_t counted = 0;
  for (const KnownTool& known : kKnownTools) {
    const Tool& tool = known.tool;
    const auto made = static_cast<std::size_t>(std::ranges::count(runs, tool.path, &ToolRun::path));
    counted += made;
    const bool isDone = counted < runs.size();  // a later tool has been run
    expected += isDone ? made : std::max(made, RunsByAnswers(tool, runs));
  }
  return expected;
}

}  // namespace hxahost
