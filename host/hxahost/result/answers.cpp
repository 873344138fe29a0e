#include "host/hxahost/result/answers.h"

#include <algorithm>
#include <set>
#include <string_view>

#include <fmt/core.h>

namespace hxahost {

namespace {

// "getconfig 1 al"
bool IsOfController(const ToolRun& run) {
  return run.outcome == Outcome::kOk && run.arguments.size() > 1 && run.arguments.front() == "getconfig";
}

std::string AnswerText(std::string_view tool, const ToolRunList& runs) {
  std::set<std::string> controllers;
  Outcome worst = Outcome::kOk;
  bool isAsked = false;
  for (const ToolRun& run : runs) {
    if (ToolName(run.path) != tool) continue;
    isAsked = true;
    worst = std::max(worst, run.outcome == Outcome::kRefused ? Outcome::kOk : run.outcome);
    if (IsOfController(run)) controllers.insert(run.arguments[1]);
  }
  if (!isAsked) return fmt::format("{} not run", tool);
  if (controllers.empty() && worst != Outcome::kOk) return fmt::format("{} {}", tool, OutcomeWord(worst));
  return fmt::format("{} {} controller{}", tool, controllers.size(), controllers.size() == 1 ? "" : "s");
}

}  // namespace

std::string AnswersText(const ToolRunList& runs) {
  if (runs.empty()) return "";
  std::string text;
  for (const std::string_view tool : KnownTools()) text += (text.empty() ? "" : ", ") + AnswerText(tool, runs);
  return text;
}

std::vector<std::string_view> NotInstalled(const ToolRunList& runs) {
  std::vector<std::string_view> tools = KnownTools();
  std::erase_if(tools, [&](std::string_view tool) {
    const auto isOfTool = [tool](const ToolRun& run) { return ToolName(run.path) == tool; };
    const auto isInstalled = [&](const ToolRun& run) { return isOfTool(run) && run.outcome != Outcome::kNotInstalled; };
    return std::ranges::none_of(runs, isOfTool) || std::ranges::any_of(runs, isInstalled);
  });
  return tools;
}

bool HasAnswer(const ToolRunList& runs) {
  return std::ranges::any_of(
      runs, [](const ToolRun& run) { return run.outcome == Outcome::kOk || run.outcome == Outcome::kRefused; });
}

bool HasController(const ToolRunList& runs) { return std::ranges::any_of(runs, IsOfController); }

}  // namespace hxahost
