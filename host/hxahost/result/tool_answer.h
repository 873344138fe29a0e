#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Judges an answer of a utility by a few texts, the only ones of the utilities that the host contains.
namespace hxahost {

// From the best to the worst.
enum class Outcome {
  kOk,
  kRefused,       // the tool reports that there is no such controller
  kNotInstalled,  // there is no such program
  kEmpty,         // it wrote nothing
  kFailed,        // its text or its exit status reports a failure
  kCutOff,        // the answer ends before its closing line
  kNotAsked,      // it was not run, because the runs before it had used up a limit
  kTimedOut,      // it was ended after its time limit
  kNotStarted,    // the program exists, but cannot be run
};

// "ok", "refused", "not installed", "empty", "failed", "cut off", "not asked", "timed out", "not started":
// programs rely on the words.
std::string_view OutcomeWord(Outcome outcome);

// Returns nothing for any other word.
std::optional<Outcome> OutcomeOfWord(std::string_view word);

struct ReadAnswer {
  Outcome outcome = Outcome::kOk;
  std::string reason;  // printable; empty only for kOk
};

// "arcconf" of "zenx//arcconf.exe".
std::string ToolName(std::string_view path);

// The utilities in the order in which they run.
std::vector<std::string_view> KnownTools();

// Whether a utility, or the system, reports that the user must be an administrator.
bool IsRefusalOfUser(std::string_view answer);

// Judges the output of a tool. For unknown programs, only an empty output has a meaning.
ReadAnswer ReadToolAnswer(std::string_view tool, const std::vector<std::string>& arguments, std::string_view output);

}  // namespace hxahost
