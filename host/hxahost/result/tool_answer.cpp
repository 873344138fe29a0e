#include "host/hxahost/result/tool_answer.h"

#include <algorithm>
#include <iterator>

#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"
#include "tools/known_tools.h"

namespace hxahost {

namespace {

constexpr std::string_view kOutcomeWords[] = {"ok",      "refused",   "not installed", "empty",      "failed",
                                              "cut off", "not asked", "timed out",     "not started"};
static_assert(std::size(kOutcomeWords) == static_cast<std::size_t>(Outcome::kNotStarted) + 1);

struct AnswerSign {
  std::string_view Tool::*text;
  Outcome outcome;
};

// If the driver is too old for the utility, a controller exists but cannot be read.
constexpr AnswerSign kSigns[] = {
    {&Tool::unreadable, Outcome::kFailed },
    {&Tool::noneFound,  Outcome::kRefused},
    {&Tool::notInUse,   Outcome::kRefused},
};

bool Contains(std::string_view text, std::string_view part) { return text.find(part) != text.npos; }

// The beginning of a text, cut to the width. Some answers are one line of megabytes: only the bytes that may fill the
// width are made printable.
std::string BeginningOf(std::string_view text, std::size_t widest) {
  constexpr std::size_t kMostBytesOfColumn = 20;
  return CutToWidth(Printable(text.substr(0, kMostBytesOfColumn * widest)), widest);
}

// The line that contains this place of the text.
std::string LineAt(std::string_view text, std::size_t place) {
  constexpr std::size_t kWidest = 200;
  const std::size_t before = text.rfind('\n', place);
  const std::size_t first = before == text.npos ? 0 : before + 1;
  return BeginningOf(text.substr(first, text.find('\n', place) - first), kWidest);
}

// Every report begins with the number of controllers, as does the text that there are none.
bool BeginsAsReport(const Tool& tool, std::string_view output) {
  return Trim(output).starts_with(tool.noneFound.substr(0, tool.noneFound.find('0'))) ||
         Contains(output, kControllerHeading);
}

// The place where a utility refuses users who are not administrators; npos if it does not. Only the first lines are
// searched, as answers may have megabytes.
std::size_t PlaceOfRefusal(std::string_view output) {
  constexpr std::size_t kMostBytes = 1000;
  constexpr std::string_view kRefusals[] = {"administrator", "access denied", "access is denied", "permission denied"};
  const std::string text = Lower(output.substr(0, kMostBytes));
  for (const std::string_view refusal : kRefusals) {
    if (const std::size_t place = text.find(refusal); place != text.npos) return place;
  }
  return output.npos;
}

// An answer that is not a report: the words of the refusal, else its beginning.
ReadAnswer ReadGarbage(std::string_view output) {
  constexpr std::size_t kWidest = 60;
  const std::size_t refusal = PlaceOfRefusal(output);
  if (refusal != output.npos) return {Outcome::kFailed, LineAt(output, refusal)};
  return {Outcome::kFailed, "printed no valid report: " + BeginningOf(output, kWidest)};
}

// A log may quote any text, so such a text in a complete answer to another command is not a refusal.
const AnswerSign* FindSign(const Tool& tool, bool isProbe, std::string_view output) {
  if (!isProbe && Contains(output, kCommandCompleted)) return nullptr;
  for (const AnswerSign& sign : kSigns) {
    const std::string_view text = tool.*sign.text;
    if (!text.empty() && Contains(output, text)) return &sign;
  }
  return nullptr;
}

std::string LastLine(std::string_view output) {
  const std::size_t end = output.find_last_not_of(kWhiteSpace);
  return end == output.npos ? "" : LineAt(output, end);
}

}  // namespace

std::string_view OutcomeWord(Outcome outcome) { return kOutcomeWords[static_cast<std::size_t>(outcome)]; }

std::optional<Outcome> OutcomeOfWord(std::string_view word) {
  const auto found = std::ranges::find(kOutcomeWords, word);
  if (found == std::end(kOutcomeWords)) return std::nullopt;
  return static_cast<Outcome>(found - std::begin(kOutcomeWords));
}

std::string ToolName(std::string_view path) {
  const std::size_t slash = path.find_last_of("/\\");
  std::string_view name = slash == path.npos ? path : path.substr(slash + 1);
  if (name.ends_with(".exe")) name.remove_suffix(4);
  return std::string(name);
}

std::vector<std::string_view> KnownTools() {
  std::vector<std::string_view> names;
  for (const KnownTool& known : kKnownTools) names.push_back(known.tool.name);
  return names;
}

bool IsRefusalOfUser(std::string_view answer) { return PlaceOfRefusal(answer) != answer.npos; }

ReadAnswer ReadToolAnswer(std::string_view tool, const std::vector<std::string>& arguments, std::string_view output) {
  if (Trim(output).empty()) return {Outcome::kEmpty, "it wrote nothing"};
  const auto* const known = std::ranges::find(kKnownTools, tool, [](const KnownTool& each) { return each.tool.name; });
  if (known == std::end(kKnownTools)) return {};
  const bool isProbe = !arguments.empty() && arguments.front() == kGetConfig.command;
  if (const AnswerSign* const sign = FindSign(known->tool, isProbe, output)) {
    return {sign->outcome, LineAt(output, output.find(known->tool.*sign->text))};
  }
  if (!Contains(output, kCommandCompleted) && !BeginsAsReport(known->tool, output)) return ReadGarbage(output);
  if (!Contains(output, kCommandCompleted)) return {Outcome::kCutOff, "its last line is \"" + LastLine(output) + "\""};
  if (isProbe && !Contains(output, kControllerHeading)) {
    return {Outcome::kFailed, "its answer has no \"" + std::string(kControllerHeading) + "\""};
  }
  return {};
}

}  // namespace hxahost
