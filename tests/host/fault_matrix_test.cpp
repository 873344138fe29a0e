#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxacore/spawn_result.h"
#include "host/hxacore/value_reader.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/query_host.h"
#include "tests/support/sample_text.h"
#include "tests/support/thoroughness.h"

// Every command of the sample machine, with everything that may go wrong with its answer, in turn: what that costs is
// said by the tables below; all else is published as if nothing had happened.
namespace fault_matrix_test {
namespace {

using namespace NKVRHXA20;
using Texts = std::vector<std::string>;

constexpr const char* kRawData = "KVRSG_zxRawData";
constexpr const char* kControllerClass = "KVRSG_zxSCSIProtocolController";

// What a utility does when it is run: says something, or cannot be run.
struct Behaviour {
  std::string text = {};
  std::string ending = {};  // how it ended where it did not end by itself
  std::optional<SpawnFailure> failure = {};
};

using Machine = std::map<std::string, Behaviour>;  // by tool and arguments, "arcconf getconfig 1 al"

// One published instance, every property in its text.
struct Instance {
  std::string className;
  std::string text;

  friend bool operator==(const Instance&, const Instance&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Instance& instance) {
    return out << instance.className << instance.text.substr(0, 300);
  }
};

struct Published {
  std::vector<Instance> instances;       // but for the raw data
  std::map<std::string, Texts> rawData;  // by their commands
  std::vector<std::string> runs;
  bool isAborted = false;  // the log says that collection was
};

Instance InstanceOf(const TPublishedInstance& published) {
  Instance instance{std::string(published.Class().name), {}};
  for (const auto& [name, value] : published.Properties()) {
    instance.text.append("\n").append(name).append(" = ").append(Rendered(value));
  }
  return instance;
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

Texts ElementTexts(const TCIMValue& array) {
  Texts texts;
  for (const TCIMValue& element : TCIMValueReader::Elements(array)) texts.push_back(element);
  return texts;
}

void Add(Published& published, const TPublishedInstance& instance) {
  if (instance.Class().name != kRawData) {
    published.instances.push_back(InstanceOf(instance));
    return;
  }
  const std::string command = instance.Properties().at(0).value;
  published.rawData[command] = ElementTexts(instance.Properties().at(1).value);
}

// All classes, queried once.
Published Query(const Machine& machine) {
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
  for (const auto& instance : host.repository->Published()) Add(published, *instance);
  for (const LogEntry& entry : host.log.entries) {
    if (entry.text.starts_with("Collection aborted: ")) published.isAborted = true;
  }
  return published;
}

// The sample machine's answers, under numbers from which no two controllers get the same one: the legacy utility has 1
// and 3, hrconf has 2, which becomes 4, and arcconf has 3 and 4, which become 6 and 7.
struct Moved {
  const char* tool;
  int from;
  int to;
  const char* publishedAs;
};
constexpr Moved kControllers[] = {
    {"qcmdrun",   1, 1, "1"},
    {"qcmdrun",   3, 3, "3"},
    {"hrconf_64", 1, 2, "4"},
    {"arcconf",   1, 3, "6"},
    {"arcconf",   2, 4, "7"},
};

std::string KeyOf(const std::string& tool, const std::string& words, int number) {
  const std::size_t blank = words.find(' ');
  const std::string option = blank == words.npos ? "" : words.substr(blank);
  return tool + " " + words.substr(0, blank) + " " + std::to_string(number) + option;
}

// The commands that a controller of the tool is asked, "getconfig al".
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
  for (const char* const tool : {"qcmdrun", "hrconf_64", "arcconf"}) {
    for (int number = 1; number <= 8; ++number) {
      for (const std::string& words : WordsOf(tool)) {
        machine[KeyOf(tool, words, number)] = {SampleAnswer(std::string(tool) + "/other")};
      }
    }
  }
  // Otherwise no higher number is asked for.
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

// A command of the machine.
struct Command {
  std::string tool;
  std::string words;  // "getevent ddd"
  int number = 0;
  const Moved* controller = nullptr;  // null: the tool has none with this number

  std::string Key() const { return KeyOf(tool, words, number); }
  std::string PublishedKey() const {
    const std::string key = Key();
    return "zenx//" + tool + ".exe" + key.substr(tool.size()) + (words.find(' ') == words.npos ? " nuthin" : "");
  }
};

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

// Makes a fault of an answer: what the utility does instead.
using Fault = Behaviour (*)(const Command& command, const Machine& machine);

std::string TextOf(const Command& command, const Machine& machine) { return machine.at(command.Key()).text; }

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != text.npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

Behaviour NotStarted(const Command&, const Machine&) { return {"", "", SpawnFailure::kNotStarted}; }
Behaviour TimeLimit(const Command&, const Machine&) { return {"", "", SpawnFailure::kTooLong}; }
Behaviour Empty(const Command&, const Machine&) { return {}; }

// In the middle of a line, most often.
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

// In each value, and where lines begin.
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

// The next of the same controller.
Behaviour OtherCommand(const Command& command, const Machine& machine) {
  const Texts all = WordsOf(command.tool);
  const auto next = std::ranges::find(all, command.words) + 1;
  return machine.at(KeyOf(command.tool, next == all.end() ? all.front() : *next, command.number));
}

// Another that the tool has; hrconf has one alone, so arcconf's, which prints much the same.
Behaviour OtherController(const Command& command, const Machine& machine) {
  for (const Moved& other : kControllers) {
    if (other.tool == command.tool && other.to != command.number) {
      return machine.at(KeyOf(command.tool, command.words, other.to));
    }
  }
  return machine.at("arcconf getconfig 3 al");
}

struct NamedFault {
  const char* name;
  Fault make;
};

// In the order of the columns of the table below, which begins with texts that are cut off behind a line.
constexpr NamedFault kFaults[] = {
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

// What a fault costs. All else is published unchanged, but for the raw data of the command itself, which show what it
// printed, if anything.
enum Cost : char {
  kNothing = '.',
  kOwnValues = 'v',   // of what the command feeds of its controller, instances may be gone or different
  kOwnClasses = 'x',  // all that the command feeds of its controller is gone
  kAnyValues = 'w',   // the same as v, of whatever controller the answer names
  kController = 'C',  // as if the controller were not there
  kTool = 'T',        // as if the utility had no controller
  kEverything = 'E',  // collection ends, and nothing that the utilities say is published
  kMore = '+',        // there is one controller more
  kElse = '?',        // none of these; never right
};

// What a command feeds, and what each fault costs: several letters where it depends on the controller's answer, or on
// where it is cut.
struct Kind {
  const char* tool;
  const char* words;  // "": any command with a number that has no controller
  const char* feeds;  // classes of the controller; "*": all
  const char* costs;  // cut off behind a line, then as in kFaults
};

// The legacy utility ends collection where an answer ends before what it lists does; the others end what is being
// read. Without carriage returns, values that are cut where those stand lose their last character. What is fed by
// nothing is recorded as raw data alone. Bad stripes that are not told are published as 0 for each drive; who asks for
// a controller that is not there and is told that there are none asks for no further one.
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

// Whether the instance is of the controller: identifiers, numbers and references say so.
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

std::size_t ControllerCount(const std::vector<Instance>& instances) {
  return static_cast<std::size_t>(std::ranges::count(instances, kControllerClass, &Instance::className));
}

const Machine& WholeMachine() {
  static const Machine machine = SampleMachine();
  return machine;
}

const Published& OfWholeMachine() {
  static const Published published = Query(WholeMachine());
  return published;
}

// What is published of a machine that lacks the controller.
const std::vector<Instance>& WithoutController(const Moved& controller) {
  static std::map<const Moved*, std::vector<Instance>> known;
  const auto [place, isNew] = known.try_emplace(&controller);
  if (isNew) {
    Machine others = WholeMachine();
    const bool isLegacy = std::string(controller.tool) == "qcmdrun";
    const std::string refusal = isLegacy ? "Command aborted.\r\n" : "Invalid controller number.\r\n";
    others[KeyOf(controller.tool, "getconfig al", controller.to)] = {refusal};
    place->second = Query(others).instances;
  }
  return place->second;
}

// Of the utilities that have one controller, which are those that can be lost whole.
bool IsWithoutTool(const Published& published, const Command& command) {
  return std::ranges::any_of(kControllers, [&](const Moved& controller) {
    return controller.tool == command.tool && published.instances == WithoutController(controller);
  });
}

// What it cost, the least first.
Cost CostOf(const Command& command, const Kind& kind, const Published& published) {
  const std::vector<Instance>& whole = OfWholeMachine().instances;
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

// Every command that is run, each once.
std::vector<Command> Commands() {
  const std::vector<std::string>& runs = OfWholeMachine().runs;
  std::vector<Command> commands;
  for (const std::string& run : std::set<std::string>(runs.begin(), runs.end())) commands.push_back(CommandOf(run));
  return commands;
}

// The raw data of the command itself: what it printed. A legacy utility that could not be run leaves a text of the
// plug-in's own behind, without a line; hrconf's silence is recorded, that of the others is not.
void ExpectOwnRawData(const Command& command, const Behaviour& behaviour, const Published& published) {
  const bool isLegacy = command.tool == "qcmdrun";
  const bool isRecorded = command.tool == "hrconf_64" || !behaviour.text.empty() || (isLegacy && behaviour.failure);
  const auto record = published.rawData.find(command.PublishedKey());
  ASSERT_EQ(record != published.rawData.end(), isRecorded) << command.PublishedKey();
  if (isRecorded) {
    EXPECT_EQ(record->second, ZenxRawData("", "", 0, "", behaviour.text).RawResults);
  }
}

void ExpectRawData(const Command& command, const Behaviour& behaviour, const Published& published) {
  if (command.controller != nullptr) ExpectOwnRawData(command, behaviour, published);
  // Commands of a number that seems to have a controller now are recorded, too.
  const std::string mark = " " + std::to_string(command.number) + " ";
  const auto isOwn = [&](const std::string& recorded) {
    if (command.controller != nullptr) return recorded == command.PublishedKey();
    return recorded.find(command.tool) != recorded.npos && recorded.find(mark) != recorded.npos;
  };
  std::map<std::string, Texts> actual = published.rawData;
  std::map<std::string, Texts> expected = OfWholeMachine().rawData;
  std::erase_if(actual, [&](const auto& record) { return isOwn(record.first); });
  std::erase_if(expected, [&](const auto& record) { return isOwn(record.first); });
  EXPECT_EQ(actual, expected);
}

void ExpectCost(const Command& command, std::size_t column, const Behaviour& behaviour) {
  Machine faulty = WholeMachine();
  faulty[command.Key()] = behaviour;
  const Published published = Query(faulty);
  const Kind& kind = KindOf(command);
  const Cost cost = CostOf(command, kind, published);
  EXPECT_NE(CostsOf(kind, column).find(cost), std::string::npos)
      << "costs " << static_cast<char>(cost) << " instead of " << CostsOf(kind, column);
  if (cost == kEverything) {
    EXPECT_TRUE(published.rawData.empty());
  } else if (cost != kMore && cost != kTool) {
    ExpectRawData(command, behaviour, published);
  }
}

TEST(FaultMatrix, EveryFaultOfEveryCommandCostsWhatItsColumnSays) {
  std::size_t number = 0;
  for (const Command& command : Commands()) {
    for (std::size_t column = 0; column < std::size(kFaults); ++column) {
      if (number++ % CasesForOneTry() != 0) continue;
      SCOPED_TRACE(command.Key() + ": " + kFaults[column].name);
      ExpectCost(command, column + 1, kFaults[column].make(command, WholeMachine()));
    }
  }
  EXPECT_EQ(number, Commands().size() * std::size(kFaults));
}

TEST(FaultMatrix, EveryAnswerCutOffBehindEachOfItsLinesCostsWhatItsColumnSays) {
  std::size_t number = 0;
  for (const Command& command : Commands()) {
    const std::string text = TextOf(command, WholeMachine());
    for (std::size_t end = text.find('\n'); end != text.npos; end = text.find('\n', end + 1)) {
      if (number++ % CasesForOneTry() != 0) continue;
      SCOPED_TRACE(command.Key() + " cut off behind " +
                   text.substr(0, end).substr(text.substr(0, end).rfind('\n') + 1));
      ExpectCost(command, 0, {text.substr(0, end + 1)});
    }
  }
  EXPECT_GT(number, 1000U);
}

// Otherwise the tables above would judge by nothing.
TEST(FaultMatrix, TheWholeMachineHasFiveControllersWithNumbersOfTheirOwn) {
  const std::vector<Instance>& whole = OfWholeMachine().instances;
  EXPECT_EQ(ControllerCount(whole), std::size(kControllers));
  for (const Moved& controller : kControllers) {
    EXPECT_TRUE(
        std::ranges::any_of(whole, [&](const Instance& instance) { return IsOf(instance, controller.publishedAs); }));
    EXPECT_EQ(ControllerCount(WithoutController(controller)), std::size(kControllers) - 1);
  }
  EXPECT_EQ(OfWholeMachine().rawData.size(), 2U * 8U + 3U + 2U * 5U);
}

}  // namespace
}  // namespace fault_matrix_test
