#include "fuzz/support/utilities.h"

#include <algorithm>

#include "fuzz/support/require.h"

namespace {

constexpr std::string_view kQcmdrunCommands[] = {
    "getconfig-al", "getstatus-device", "getbst-device", "getevent-device",
    "getevent-ddd", "getevent-soft",    "getevent-hard", "getsubstat-device",
};
constexpr std::string_view kHrconfCommands[] = {"getconfig-al", "getstatus", "getversion"};
constexpr std::string_view kArcconfCommands[] = {
    "getconfig-al", "getlogs-device", "getlogs-dead", "getlogs-event", "getlogs-uart",
};

// Recording first requests each controller number; parsing then requests it again.
constexpr std::size_t kNumbers = 8;

}  // namespace

const Utility kQcmdrun = {"qcmdrun", kQcmdrunCommands, kNumbers*(1 + 8 + 8)};
const Utility kHrconf = {"hrconf_64", kHrconfCommands, kNumbers*(1 + 3 + 2)};
const Utility kArcconf = {"arcconf", kArcconfCommands, kNumbers*(1 + 5 + 1)};

std::size_t AnswerCount(const Utility& utility) { return kAnsweredControllers * utility.commands.size(); }

std::size_t AnswerPlace(const Utility& utility, const std::vector<std::string>& arguments) {
  Require(arguments.size() == 2 || arguments.size() == 3, "a utility is run with a command, a number and an option");
  const std::string command = arguments[0] + (arguments.size() == 3 ? "-" + arguments[2] : "");
  const auto place = std::ranges::find(utility.commands, command);
  Require(place != utility.commands.end(), "a utility is run with its own commands", command);
  const std::size_t number = std::stoul(arguments[1]);
  Require(number >= 1 && number <= kNumbers, "controllers are requested by the numbers 1 to 8", arguments[1]);
  const std::size_t controller = std::min(number, kAnsweredControllers) - 1;
  return controller * utility.commands.size() + static_cast<std::size_t>(place - utility.commands.begin());
}
