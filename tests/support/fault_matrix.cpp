#include "tests/support/fault_matrix.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>

#include "tests/support/recorded_system_setting.h"
#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"
#include "tests/support/tool_text.h"

namespace fault_matrix {

using namespace NKVRHXA20;

namespace {

constexpr const char* kControllerClass = "KVRSG_zxSCSIProtocolController";

// The sample machine's answers, with numbers that give each controller a number of its own: the legacy utility has 1
// and 2, hrconf has 2, which becomes 4, and arcconf has 3 and 4, which become 6 and 7.
constexpr Moved kControllers[] = {
    {"qcmdrun",   1, 1, "1"},
    {"qcmdrun",   2, 2, "2"},
    {"hrconf_64", 1, 2, "4"},
    {"arcconf",   1, 3, "6"},
    {"arcconf",   2, 4, "7"},
};

std::string KeyOf(const std::string& tool, const std::string& words, int number) {
  const std::size_t blank = words.find(' ');
  const std::string option = blank == words.npos ? "" : words.substr(blank);
  return tool + " " + words.substr(0, blank) + " " + std::to_string(number) + option;
}

// The commands for a controller of the tool, "getconfig al".
Texts WordsOf(const std::string& tool) {
  Texts all;
  for (const auto& [key, answer] : AllAnswersOf(tool)) {
    const std::string first = tool + " ";
    const std::size_t number = key.find(" 1", first.size());
    if (number == key.npos) continue;
    all.push_back(key.substr(first.size(), number - first.size()) + key.substr(number + 2));
  }
  return all;
}

Machine SampleMachine() {
  Machine machine;
  for (const char* const tool : kTools) {
    for (int number = 1; number <= 8; ++number) {
      for (const std::string& words : WordsOf(tool)) {
        machine[KeyOf(tool, words, number)] = {SampleAnswer(std::string(tool) + "/other")};
      }
    }
  }
  // Without this answer no higher number is requested.
  machine["hrconf_64 getconfig 1 al"] = {"Controllers found: 1\r\nInvalid controller number.\r\n"};
  for (const Moved& controller : kControllers) {
    auto answers = AllAnswersOf(controller.tool);
    for (const std::string& words : WordsOf(controller.tool)) {
      machine[KeyOf(controller.tool, words, controller.to)] = {
          answers.at(KeyOf(controller.tool, words, controller.from))};
    }
  }
  return machine;
}

Command CommandOf(const std::string& run) {
  const std::size_t first = run.find(' ');
  const std::size_t second = run.find(' ', first + 1);
  const std::size_t third = run.find(' ', second + 1);
  Command command{run.substr(0, first), run.substr(first + 1, second - first - 1), std::stoi(run.substr(second + 1))};
  if (third != run.npos) command.words += run.substr(third);
  for (const Moved& controller : kControllers) {
    if (controller.tool == command.tool && controller.to == command.number) command.controller = &controller;
  }
  return command;
}

std::string TextOf(const Command& command, const Machine& machine) { return machine.at(command.Key()).text; }

Behaviour NotStarted(const Command&, const Machine&) { return {"", "", SpawnFailure::kNotStarted}; }
Behaviour TimeLimit(const Command&, const Machine&) { return {"", "", SpawnFailure::kTooLong}; }
Behaviour Empty(const Command&, const Machine&) { return {}; }

// Usually in the middle of a line.
Behaviour EndedBySignal(const Command& command, const Machine& machine) {
  const std::string text = TextOf(command, machine);
  return {text.substr(0, text.size() / 2), "signal 11", {}};
}

Behaviour LastLineUnended(const Command& command, const Machine& machine) {
  const std::string text = TextOf(command, machine);
  return {text.substr(0, text.find_last_not_of("\r\n") + 1)};
}

Behaviour LineFeedsAlone(const Command& command, const Machine& machine) {
  return {Replaced(TextOf(command, machine), "\r\n", "\n")};
}

Behaviour DoubledCarriageReturns(const Command& command, const Machine& machine) {
  return {Replaced(TextOf(command, machine), "\r\n", "\r\r\n")};
}

// In each value, and at the beginning of lines.
Behaviour NulBytes(const Command& command, const Machine& machine) {
  using namespace std::string_literals;
  return {Replaced(Replaced(TextOf(command, machine), ": ", ": \0"s), "\r\n   ", "\r\n   \0"s)};
}

Behaviour HighBytes(const Command& command, const Machine& machine) {
  std::string bytes;
  for (int byte = 0x80; byte <= 0xff; ++byte) bytes += static_cast<char>(byte);
  return {Replaced(Replaced(TextOf(command, machine), ": ", ": " + bytes), "\r\n", "\xff\r\n")};
}

Behaviour HugeLine(const Command&, const Machine&) {
  constexpr std::size_t kSize = std::size_t{16} << 20U;
  return {std::string(kSize - 2, 'x') + "\r\n"};
}

// The next command for the same controller.
Behaviour OtherCommand(const Command& command, const Machine& machine) {
  const Texts all = WordsOf(command.tool);
  const auto next = std::ranges::find(all, command.words) + 1;
  return machine.at(KeyOf(command.tool, next == all.end() ? all.front() : *next, command.number));
}

// Another controller of the tool; hrconf has only one, so arcconf's, whose output is similar.
Behaviour OtherController(const Command& command, const Machine& machine) {
  for (const Moved& other : kControllers) {
    if (other.tool == command.tool && other.to != command.number) {
      return machine.at(KeyOf(command.tool, command.words, other.to));
    }
  }
  return machine.at("arcconf getconfig 3 al");
}

constexpr Fault kFaults[] = {
    {"cannot be started",         NotStarted            },
    {"ends by a signal",          EndedBySignal         },
    {"time limit",                TimeLimit             },
    {"empty",                     Empty                 },
    {"last line unended",         LastLineUnended       },
    {"line feeds alone",          LineFeedsAlone        },
    {"doubled carriage returns",  DoubledCarriageReturns},
    {"NUL bytes",                 NulBytes              },
    {"bytes 0x80 to 0xff",        HighBytes             },
    {"16 MiB of one line",        HugeLine              },
    {"answer of another command", OtherCommand          },
    {"another controller's",      OtherController       },
};

// The classes that a command feeds, and the cost of each fault: several letters if it depends on the controller's
// answer, or on the place of the cut.
struct Kind {
  const char* tool;
  const char* words;  // "": any command with a number that has no controller
  const char* feeds;  // classes of the controller; "*": all
  const char* costs;  // cut off after a line, then as in kFaults
};

// If an answer is incomplete, the legacy utility ends the collection and the others end the current object. Without
// carriage returns, values that are cut at those lose their last character. Commands that feed no class are only
// recorded as raw data. Bad stripes that are not reported are published as 0 for each drive; after the answer that
// there are no controllers at all, no further number is requested.
//
// cut, cannot be started, signal, time limit, empty, unended, LF, CR CR LF, NUL, high bytes, huge, command, controller
// clang-format off
constexpr Kind kKinds[] = {
    {"qcmdrun", "getconfig al", "*",
     ".CE C  E  C  C  E  v  .v v  v  C  C  v"},
    {"qcmdrun", "getstatus device", "KVRSG_zxSCSIProtocolController",
     ".v  v  v  v  v  .  .  .  v  v  v  v  v"},
    {"qcmdrun", "getbst device", "KVRSG_BadStripeData KVRSG_ElementBadStripeData",
     ".vE .v .v .v .v .E .v .  .  .  .v .v v"},
    {"qcmdrun", "getevent device", "KVRSG_zxSCSIDeviceData KVRSG_ElementZxScsiDeviceData",
     ".xE x  E  x  x  E  .  .  .  .  x  x  v"},
    {"qcmdrun", "getevent ddd", "KVRSG_LogRecord_zxDDD",
     ".xE x  xE x  x  E  v  v  .  v  x  x  v"},
    {"qcmdrun", "getevent soft", "KVRSG_LogRecord_SoftEvent",
     ".xE x  xE x  x  E  .  .  .  .  x  x  v"},
    {"qcmdrun", "getevent hard", "KVRSG_LogRecord_HardEvent",
     ".xE x  xE x  x  E  .  .  .  .  x  x  v"},
    {"qcmdrun", "getsubstat device", "KVRSG_zxSCSISubStatData",
     ".xE x  E  x  x  E  v  v  .  v  x  x  w"},
    {"qcmdrun", "", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  +"},
    {"hrconf_64", "getconfig al", "*",
     ".vC C  v  C  C  .  .  .  v  v  C  C  v"},
    {"hrconf_64", "getstatus", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  ."},
    {"hrconf_64", "getversion", "KVRSG_zxSCSIProtocolController KVRSG_zxBiosVersion KVRSG_zxBiosOnController",
     ".v  v  v  v  v  .  .  .  v  v  v  v  v"},
    {"hrconf_64", "", "",
     ".   .  .  .  .  .  .  .  .  .  .  .T +"},
    {"arcconf", "getconfig al", "*",
     ".vC C  v  C  C  .  v  .  v  v  C  C  v"},
    {"arcconf", "getlogs device", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  ."},
    {"arcconf", "getlogs dead", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  ."},
    {"arcconf", "getlogs event", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  ."},
    {"arcconf", "getlogs uart", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  ."},
    {"arcconf", "", "",
     ".   .  .  .  .  .  .  .  .  .  .  .  +"},
};
// clang-format on

const Kind& KindOf(const Command& command) {
  const auto* const kind = std::ranges::find_if(kKinds, [&](const Kind& each) {
    return command.tool == each.tool &&
           command.words == (command.controller == nullptr ? "getconfig al" : each.words) &&
           (command.controller == nullptr) == (*each.words == '\0');
  });
  if (kind == std::end(kKinds)) throw std::logic_error("No row for " + command.Key());
  return *kind;
}

// The cell of a column, counted from 0.
std::string CostsOf(const Kind& kind, std::size_t column) {
  std::istringstream cells(kind.costs);
  std::string cell;
  for (std::size_t index = 0; index <= column; ++index) cells >> cell;
  return cell;
}

bool IsInFedClass(const Instance& instance, const Kind& kind) {
  std::istringstream classes(kind.feeds);
  for (std::string name; classes >> name;) {
    if (name == "*" || name == instance.className) return true;
  }
  return false;
}

bool IsFed(const Instance& instance, const Kind& kind, const Command& command) {
  return command.controller != nullptr && IsOf(instance, command.controller->publishedAs) &&
         IsInFedClass(instance, kind);
}

using Picks = std::function<bool(const Instance& instance)>;

std::vector<Instance> Without(const std::vector<Instance>& instances, const Picks& picks) {
  std::vector<Instance> others;
  std::ranges::remove_copy_if(instances, std::back_inserter(others), picks);
  return others;
}

SpawnResult Run(const Machine& machine, const std::string& command) {
  const auto found = machine.find(command);
  if (found == machine.end()) throw TSpawnException(SpawnFailure::kNotStarted, command + " is not here");
  const Behaviour& behaviour = found->second;
  if (behaviour.failure) throw TSpawnException(*behaviour.failure, command + " failed");
  SpawnResult result(behaviour.text);
  result.ending = behaviour.ending;
  return result;
}

}  // namespace

std::span<const Moved> Controllers() { return kControllers; }

std::span<const Fault> Faults() { return kFaults; }

const Machine& WholeMachine() {
  static const Machine machine = SampleMachine();
  return machine;
}

Machine MachineWithout(Machine machine, const Moved& controller) {
  const bool isLegacy = std::string(controller.tool) == "qcmdrun";
  machine[KeyOf(controller.tool, "getconfig al", controller.to)] = {isLegacy ? "Command aborted.\r\n"
                                                                             : "Invalid controller number.\r\n"};
  return machine;
}

std::string Command::Key() const { return KeyOf(tool, words, number); }

std::string Command::PublishedKey() const {
  const std::string key = Key();
  return "zenx//" + tool + ".exe" + key.substr(tool.size()) + (words.find(' ') == words.npos ? " nuthin" : "");
}

// Identifiers, numbers and references contain the controller's number.
bool IsOf(const Instance& instance, const std::string& number) {
  const std::string marks[] = {
      "Zentraxis" + number,
      "Zentraxis:" + number,
      "\"C" + number + " ",
      "-C" + number + " ",
      "ControllerNum = \"" + number + "\"",
      "Controller = \"" + number + "\"",
      "SoftwareElementID = \"" + number,
      "SoftwareElementID=\"" + number,
  };
  return std::ranges::any_of(marks,
                             [&](const std::string& mark) { return instance.text.find(mark) != std::string::npos; });
}

std::size_t ControllerCount(const std::vector<Instance>& instances) {
  return static_cast<std::size_t>(std::ranges::count(instances, kControllerClass, &Instance::className));
}

Published QueryScripted(const Machine& machine, Read read) {
  // Without it, Windows would list the devices of the test's machine for every slot: thousands of times.
  const RecordedSystemSetting system{RecordedSystem()};
  ScriptedServices scripted;
  HostServices services = CurrentServices();
  Published published;
  services.spawn = [&](const std::string& path, const std::vector<std::string>& arguments, int) {
    std::string command = path.substr(path.rfind('/') + 1);
    command.erase(command.rfind(".exe"));
    for (const std::string& argument : arguments) command += " " + argument;
    published.runs.push_back(command);
    return Run(machine, command);
  };
  SetServices(std::move(services));
  QueryHost host;
  Texts classes;
  for (const CatalogueEntry& entry : Catalogue()) classes.emplace_back(entry.name);
  host.Query(classes);
  read(host, published);
  for (const LogEntry& entry : host.log.entries) {
    if (entry.text.starts_with("Collection aborted: ")) published.isAborted = true;
  }
  return published;
}

const std::vector<Instance>& FaultMatrix::WithoutController(const Moved& controller) {
  const auto [place, isNew] = withoutController_.try_emplace(&controller);
  if (isNew) place->second = query_(MachineWithout(WholeMachine(), controller)).instances;
  return place->second;
}

std::vector<Command> CommandsOf(const Published& published) {
  std::vector<Command> commands;
  for (const std::string& run : std::set<std::string>(published.runs.begin(), published.runs.end())) {
    commands.push_back(CommandOf(run));
  }
  return commands;
}

// Whether the utility's only controller is missing; utilities with several controllers never lose all.
bool FaultMatrix::IsWithoutTool(const Published& published, const Command& command) {
  return std::ranges::any_of(kControllers, [&](const Moved& controller) {
    return controller.tool == command.tool && published.instances == WithoutController(controller);
  });
}

// The lowest cost that matches.
Cost FaultMatrix::CostOf(const Command& command, const Published& published) {
  const Kind& kind = KindOf(command);
  const std::vector<Instance>& whole = whole_.instances;
  if (published.isAborted) return ControllerCount(published.instances) == 0 ? kEverything : kElse;
  if (published.instances == whole) return kNothing;
  if (command.controller != nullptr && published.instances == WithoutController(*command.controller)) {
    return kController;
  }
  const Picks isFed = [&](const Instance& instance) { return IsFed(instance, kind, command); };
  if (Without(published.instances, isFed) == Without(whole, isFed)) {
    return std::ranges::any_of(published.instances, isFed) ? kOwnValues : kOwnClasses;
  }
  if (ControllerCount(published.instances) == ControllerCount(whole) + 1) return kMore;
  if (command.controller == nullptr) return IsWithoutTool(published, command) ? kTool : kElse;
  const Picks isInFedClass = [&](const Instance& instance) {
    return std::string(kind.feeds) != "*" && IsInFedClass(instance, kind);
  };
  return Without(published.instances, isInFedClass) == Without(whole, isInFedClass) ? kAnyValues : kElse;
}

std::string FaultMatrix::Misfit(const Command& command, std::size_t column, const Published& published) {
  const std::string costs = CostsOf(KindOf(command), column);
  const Cost cost = CostOf(command, published);
  return costs.find(cost) != costs.npos ? "" : std::string("costs ") + static_cast<char>(cost) + " instead of " + costs;
}

}  // namespace fault_matrix
