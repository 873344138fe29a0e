#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What an answer of a utility amounts to. The host knows of the utilities only the few texts that say so.
namespace hxahost {

// From the best to the worst.
enum class Outcome {
  kOk,
  kRefused,       // the tool says that there is no such controller
  kNotInstalled,  // there is no such program
  kEmpty,         // it wrote nothing
  kFailed,        // it says or shows by its exit status that something went wrong
  kCutOff,        // the answer ends before its closing line
  kNotAsked,      // it was not run: runs before it had used up what a limit allows
  kTimedOut,      // it was ended when its time was up
  kNotStarted,    // the program is there, but cannot be run
};

// "ok", "refused", "not installed", "empty", "failed", "cut off", "not asked", "timed out", "not started":
// programs rely on the words.
std::string_view OutcomeWord(Outcome outcome);

// Nothing where it is none of these words.
std::optional<Outcome> OutcomeOfWord(std::string_view word);

struct ReadAnswer {
  Outcome outcome = Outcome::kOk;
  std::string reason;  // printable; empty only for kOk
};

// "arcconf" of "zenx//arcconf.exe".
std::string ToolName(std::string_view path);

// The utilities in the order in which they are run.
std::vector<std::string_view> KnownTools();

// Whether a utility, or the system, says that the user has to be an administrator.
bool IsRefusalOfUser(std::string_view answer);

// Reads what a tool wrote. Of programs that are no known utility, only an empty answer tells anything.
ReadAnswer ReadToolAnswer(std::string_view tool, const std::vector<std::string>& arguments, std::string_view output);

}  // namespace hxahost
