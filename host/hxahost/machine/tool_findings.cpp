#include "host/hxahost/machine/tool_findings.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include <fmt/core.h>
#include <fmt/format.h>

#include "host/hxahost/machine/health_rules.h"
#include "host/hxahost/result/answers.h"
#include "host/hxahost/result/tool_run.h"

namespace hxahost {

namespace {

constexpr std::string_view kConfiguration = "getconfig";
constexpr std::string_view kOnlyKept = "getlogs";  // no state is read from the logs that arcconf prints

std::string_view CommandOf(const ToolRun& run) {
  return run.arguments.empty() ? std::string_view() : std::string_view(run.arguments.front());
}

using Tools = std::vector<std::string_view>;

bool AppliesToRun(Where where, const ToolRun& run, const Tools& optional) {
  switch (where) {
    case Where::kOnOptional: return std::ranges::find(optional, ToolName(run.path)) != optional.end();
    case Where::kOnConfiguration: return CommandOf(run) == kConfiguration;
    case Where::kOnState: return CommandOf(run) != kOnlyKept;
    default: return where == Where::kAnywhere;
  }
}

const HealthRule& RuleForRun(const ToolRun& run, const Tools& optional) {
  return *std::ranges::find_if(HealthRules(), [&](const HealthRule& rule) {
    return rule.value == &kOutcome && rule.word == OutcomeWord(run.outcome) && AppliesToRun(rule.where, run, optional);
  });
}

// Runs of one utility that went wrong in one way.
struct Trouble {
  const HealthRule* rule = nullptr;
  std::string tool;
  std::string reason;
  std::string firstCommand;
  std::size_t times = 0;
};

std::vector<Trouble> Troubles(const ToolRunList& runs, const Tools& optional) {
  std::vector<Trouble> troubles;
  for (const ToolRun& run : runs) {
    const HealthRule& rule = RuleForRun(run, optional);
    if (SeverityOf(rule.level) == Severity::kFine) continue;
    const std::string tool = ToolName(run.path);
    const auto same = std::ranges::find_if(troubles, [&](const Trouble& trouble) {
      return trouble.rule == &rule && trouble.tool == tool && trouble.reason == run.failure;
    });
    if (same == troubles.end()) {
      troubles.push_back({&rule, tool, run.failure, ArgumentsText(run), 1});
    } else {
      ++same->times;
    }
  }
  return troubles;
}

// Utilities that are expected but were not run. Later queries of one program run no utility.
std::vector<Trouble> NeverRun(const Expectations& expectations, const QueryResult& result) {
  std::vector<Trouble> troubles;
  if (result.number > 1) return troubles;
  for (const std::string& tool : expectations.tools) {
    const bool isRun =
        std::ranges::any_of(result.runs, [&tool](const ToolRun& run) { return ToolName(run.path) == tool; });
    if (!isRun)
      troubles.push_back({&RuleFor(kOutcome, OutcomeWord(Outcome::kNotAsked)), tool, "it was not run", "", 1});
  }
  return troubles;
}

Finding AsFinding(const Trouble& trouble) {
  std::string name = trouble.tool + (trouble.firstCommand.empty() ? "" : " ") + trouble.firstCommand;
  if (trouble.times > 1) name += fmt::format(" and {} more", trouble.times - 1);
  return {SeverityOf(trouble.rule->level),
          std::string(kToolRun),
          trouble.tool,
          std::move(name),
          std::string(kOutcome.property),
          fmt::format("{}: {}", trouble.rule->word, trouble.reason),
          trouble.rule->meaning};
}

// The number of controllers that a utility described, by tool and number.
std::size_t CountAnswers(const ToolRunList& runs) {
  std::set<std::pair<std::string, std::string>> answers;
  for (const ToolRun& run : runs) {
    const bool isWhole = run.outcome == Outcome::kOk && CommandOf(run) == kConfiguration && run.arguments.size() > 1;
    if (isWhole) answers.emplace(ToolName(run.path), run.arguments[1]);
  }
  return answers.size();
}

Finding OfCollection(std::string_view word, std::string text) {
  const HealthRule& rule = RuleFor(kAnswers, word);
  return {SeverityOf(rule.level),
          std::string(kToolRun),
          std::string(kCollection),
          "the collection",
          std::string(kAnswers.property),
          std::move(text),
          rule.meaning};
}

// Whether every run was of a program that does not exist.
bool IsNothingInstalled(const ToolRunList& runs) {
  const auto isMissing = [](const ToolRun& run) { return run.outcome == Outcome::kNotInstalled; };
  return !runs.empty() && std::ranges::all_of(runs, isMissing);
}

Finding NothingInstalled(const ToolRunList& runs) {
  return OfCollection("no tool is installed",
                      fmt::format("found no utility: not installed are {}", fmt::join(NotInstalled(runs), ", ")));
}

std::optional<Finding> LogFinding(const std::string& text) {
  const Words head = LogHead(text);
  const auto rule = std::ranges::find_if(HealthRules(), [&head](const HealthRule& each) {
    return each.value == &kLogText && !head.empty() && each.word == head.front();
  });
  if (rule == HealthRules().end()) return std::nullopt;
  return Finding{SeverityOf(rule->level),
                 std::string(kLog),
                 "log",
                 "the log",
                 std::string(kLogText.property),
                 text,
                 rule->meaning};
}

// The log may contain a fact twice, as a line and in a longer form.
void AddLogFindings(const std::vector<LoggedEntry>& log, Findings& findings) {
  std::set<std::string> seen;
  for (const LoggedEntry& entry : log) {
    const auto finding = LogFinding(entry.text);
    if (finding && seen.insert(TextOf(finding->meaning)).second) findings.push_back(*finding);
  }
}

}  // namespace

Tools OptionalTools(const Expectations& expectations, const ToolRunList& runs) {
  Tools tools = NotInstalled(runs);
  if (IsNothingInstalled(runs)) return {};
  std::erase_if(tools, [&](std::string_view tool) { return IsExpected(expectations, tool); });
  return tools;
}

Findings ToolFindings(const Machine& machine, const QueryHeader& header, const QueryResult& result) {
  if (IsNothingInstalled(result.runs)) return {NothingInstalled(result.runs)};
  Findings findings;
  for (const Trouble& trouble : Troubles(result.runs, machine.absentTools)) findings.push_back(AsFinding(trouble));
  if (!result.notRecorded.empty()) {
    // What the log says then, and what was not run, follows from it.
    findings.push_back(OfCollection("not recorded", "replay ended: the bundle does not hold " + result.notRecorded));
    return findings;
  }
  for (const Trouble& trouble : NeverRun(header.expectations, result)) findings.push_back(AsFinding(trouble));
  AddLogFindings(result.log, findings);
  return findings;
}

// Later queries of one program run no utility. A replay that ended early publishes less than its answers contain.
Findings AnswerFindings(const QueryResult& result, std::size_t known) {
  if (!result.notRecorded.empty()) return {};
  const std::size_t answers = CountAnswers(result.runs);
  Findings findings;
  if (answers > known) {
    findings.push_back(
        OfCollection("not published", fmt::format("{} controllers answered, {} are known", answers, known)));
  }
  if (result.runs.empty() && result.number == 1) findings.push_back(OfCollection("no tool was run", "no run"));
  return findings;
}

}  // namespace hxahost
