#include "host/hxahost/views/tables/tool_summary.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <string_view>

#include <fmt/core.h>

#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

constexpr std::size_t kMostTroubles = 6;  // of one utility; more would hide everything else

bool IsTrouble(Outcome outcome) { return outcome != Outcome::kOk && outcome != Outcome::kRefused; }

// The controller's number, if the run asks about a whole controller.
std::optional<int> ProbedNumber(const ToolRun& run) {
  if (run.arguments.size() < 2 || run.arguments.front() != "getconfig") return std::nullopt;
  const std::string& text = run.arguments[1];
  int number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || stop != text.data() + text.size()) return std::nullopt;
  return number;
}

void AddTrouble(std::vector<ToolTrouble>& troubles, const ToolRun& run) {
  const auto known = std::ranges::find_if(troubles, [&run](const ToolTrouble& trouble) {
    return trouble.outcome == run.outcome && trouble.reason == run.failure;
  });
  if (known == troubles.end()) {
    troubles.push_back({run.outcome, run.failure, ArgumentsText(run), 1});
  } else {
    ++known->times;
  }
}

ToolSummary Summarize(std::string tool, const ToolRunList& runs) {
  ToolSummary summary;
  summary.tool = std::move(tool);
  std::map<int, Outcome> worst;
  for (const ToolRun& run : runs) {
    if (ToolName(run.path) != summary.tool) continue;
    summary.reused += run.isReused ? 1 : 0;
    summary.runs += run.isReused || run.outcome == Outcome::kNotAsked ? 0 : 1;
    summary.seconds += run.seconds;
    if (IsTrouble(run.outcome)) AddTrouble(summary.troubles, run);
    if (const auto number = ProbedNumber(run)) {
      Outcome& outcome = worst[*number];
      outcome = std::max(outcome, run.outcome);
    }
  }
  for (const auto& [number, outcome] : worst) {
    if (outcome == Outcome::kOk) summary.controllers.push_back(number);
    if (outcome == Outcome::kRefused) summary.refused.push_back(number);
  }
  return summary;
}

// "1, 2" or "3-8, 10".
std::string NumbersText(const std::vector<int>& numbers, std::size_t shortestRange) {
  std::string text;
  for (std::size_t first = 0; first < numbers.size();) {
    std::size_t last = first;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    const bool isRange = last - first + 1 >= shortestRange;
    if (!isRange) last = first;
    text += (text.empty() ? "" : ", ") + std::to_string(numbers[first]);
    if (isRange) text += "-" + std::to_string(numbers[last]);
    first = last + 1;
  }
  return text;
}

std::string Counted(std::size_t count, std::string_view what) {
  return fmt::format("{} {}{}", count, what, count == 1 ? "" : "s");
}

std::string ControllersText(const ToolSummary& summary) {
  constexpr std::size_t kNoRanges = static_cast<std::size_t>(-1);
  if (!summary.controllers.empty()) {
    return fmt::format("{} ({})", Counted(summary.controllers.size(), "controller"),
                       NumbersText(summary.controllers, kNoRanges));
  }
  // Only a utility that answered every question proves that there is no controller.
  return summary.troubles.empty() ? "no controller found" : "no controller answered";
}

std::string RefusedText(const std::vector<int>& refused) {
  if (refused.empty()) return "";
  constexpr std::size_t kShortestRange = 2;
  return fmt::format(", number{} {} refused", refused.size() == 1 ? "" : "s", NumbersText(refused, kShortestRange));
}

// The kinds of trouble, the worst first: "2 timed out, 1 cut off".
std::string TroubleCounts(const ToolSummary& summary) {
  std::map<Outcome, std::size_t, std::greater<>> counts;
  for (const ToolTrouble& trouble : summary.troubles) counts[trouble.outcome] += trouble.times;
  std::string text;
  for (const auto& [outcome, count] : counts) {
    text += fmt::format(", {} {}", count, OutcomeWord(outcome));
  }
  return text;
}

std::vector<std::string> ToolsToShow(const ToolRunList& runs) {
  std::vector<std::string> tools;
  for (const std::string_view known : KnownTools()) tools.emplace_back(known);
  for (const ToolRun& run : runs) {
    if (std::ranges::count(tools, ToolName(run.path)) == 0) tools.push_back(ToolName(run.path));
  }
  return tools;
}

void WriteLine(std::ostream& out, const Layout& layout, std::size_t indent, const std::string& text) {
  out << std::string(indent, ' ') << CutToWidth(text, layout.width - indent) << '\n';
}

std::string TroubleHead(const ToolTrouble& trouble) {
  const std::string which =
      trouble.times == 1 ? trouble.firstCommand : Counted(trouble.times, "run") + ", the first " + trouble.firstCommand;
  return fmt::format("{} ({}):", OutcomeWord(trouble.outcome), which);
}

// The reason matters most: if it does not fit on the line, it is on a line of its own.
void WriteTrouble(std::ostream& out, const Layout& layout, const ToolTrouble& trouble) {
  constexpr std::size_t kIndent = 4;
  if (kIndent + DisplayWidth(TroubleText(trouble)) <= layout.width) {
    return WriteLine(out, layout, kIndent, TroubleText(trouble));
  }
  WriteLine(out, layout, kIndent, TroubleHead(trouble));
  WriteLine(out, layout, kIndent + 2, trouble.reason);
}

void WriteSummary(std::ostream& out, const Layout& layout, const ToolSummary& summary) {
  WriteLine(out, layout, 2, SummaryText(summary));
  const std::size_t shown = std::min(summary.troubles.size(), kMostTroubles);
  for (std::size_t index = 0; index < shown; ++index) WriteTrouble(out, layout, summary.troubles[index]);
  if (summary.troubles.size() > shown) {
    WriteLine(out, layout, 4,
              "and " + Counted(summary.troubles.size() - shown, "other trouble") + ": --log FILE shows all");
  }
}

// The reason why the collection ended before all tools were run.
void WriteAbort(std::ostream& out, const Layout& layout, const QueryResult& result) {
  constexpr std::string_view kAborted = "Collection aborted: ";
  for (const LoggedEntry& entry : result.log) {
    if (!entry.text.starts_with(kAborted)) continue;
    WriteLine(out, layout, 2, "The collection was aborted; what had not been run by then is missing. The log says:");
    WriteLine(out, layout, 4, Printable(entry.text));
  }
}

bool IsNotStarted(const ToolTrouble& trouble) {
  return trouble.outcome == Outcome::kNotStarted || trouble.outcome == Outcome::kNotInstalled;
}

}  // namespace

std::vector<ToolSummary> SummarizeRuns(const ToolRunList& runs) {
  std::vector<ToolSummary> summaries;
  for (std::string& tool : ToolsToShow(runs)) summaries.push_back(Summarize(std::move(tool), runs));
  return summaries;
}

std::string SummaryText(const ToolSummary& summary) {
  const std::string tool = Printable(summary.tool);
  if (summary.runs == 0 && summary.troubles.empty()) return tool + ": not run";
  const std::string reused = summary.reused == 0 ? "" : fmt::format(", {} from memory", summary.reused);
  return fmt::format("{}: {}{}, {}{}{}, {:.1f} s", tool, Counted(summary.runs, "run"), reused, ControllersText(summary),
                     RefusedText(summary.refused), TroubleCounts(summary), summary.seconds);
}

std::string TroubleText(const ToolTrouble& trouble) { return TroubleHead(trouble) + " " + trouble.reason; }

void WriteToolSummaries(std::ostream& out, const QueryHeader& header, const QueryResult& result) {
  out << "\nRuns of the tools\n";
  if (result.runs.empty() && result.number > 1) {
    out << "  none: the answers are those of the first query\n";
    return;
  }
  bool isMissing = false;
  for (const ToolSummary& summary : SummarizeRuns(result.runs)) {
    WriteSummary(out, header.layout, summary);
    isMissing = isMissing || std::ranges::any_of(summary.troubles, IsNotStarted);
  }
  if (isMissing)
    WriteLine(out, header.layout, 2, "Tools belong into the folder zenx of " + Printable(header.directory) + ".");
  WriteAbort(out, header.layout, result);
}

}  // namespace hxahost
