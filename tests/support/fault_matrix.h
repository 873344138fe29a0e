#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "tests/support/query_host.h"

// Every command of the sample machine, with everything that may go wrong with its answer, in turn: what that costs is
// said by the tables in fault_matrix.cpp; all else is published as if nothing had happened.
namespace fault_matrix {

using Texts = std::vector<std::string>;

// What a utility does when it is run: says something, or cannot be run.
struct Behaviour {
  std::string text = {};
  std::string ending = {};  // how it ended where it did not end by itself
  std::optional<NKVRHXA20::SpawnFailure> failure = {};
};

using Machine = std::map<std::string, Behaviour>;  // by tool and arguments, "arcconf getconfig 1 al"

// One published instance, every property in its text: Name = "value" where it is a text or a reference.
struct Instance {
  std::string className;
  std::string text;

  friend bool operator==(const Instance&, const Instance&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Instance& instance) {
    return out << instance.className << instance.text.substr(0, 300);
  }
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

struct Published {
  std::vector<Instance> instances;       // but for the raw data
  std::map<std::string, Texts> rawData;  // by their commands
  Texts runs;                            // commands, where they are listed
  bool isAborted = false;                // the log says that collection was
};

// Where instances of this class are not among the others.
constexpr const char* kRawData = "KVRSG_zxRawData";
constexpr const char* kTools[] = {"qcmdrun", "hrconf_64", "arcconf"};

// A controller of the sample machine, under another number.
struct Moved {
  const char* tool;
  int from;
  int to;
  const char* publishedAs;
};

std::span<const Moved> Controllers();

// The sample machine, in which no two controllers get the same number.
const Machine& WholeMachine();

// The machine, of which a controller is asked for in vain.
Machine MachineWithout(Machine machine, const Moved& controller);

// A command of the machine.
struct Command {
  std::string tool;
  std::string words;  // "getevent ddd"
  int number = 0;
  const Moved* controller = nullptr;  // null: the tool has none with this number

  std::string Key() const;           // "qcmdrun getevent 1 ddd"
  std::string PublishedKey() const;  // "zenx//qcmdrun.exe getevent 1 ddd"
};

// One thing that goes wrong: what the utility does instead of answering.
struct Fault {
  const char* name;
  Behaviour (*Make)(const Command& command, const Machine& machine);
};

// In the order of the table's columns, which begins with texts that are cut off after a line.
std::span<const Fault> Faults();
constexpr std::size_t kCutOff = 0;
constexpr std::size_t kFirstFault = 1;

// Queries all classes, once, of utilities that do as the machine says, without any process.
using Read = void (*)(const QueryHost& host, Published& published);
Published QueryScripted(const Machine& machine, Read read);

// Holds what is published of machines with a fault against the tables.
class FaultMatrix {
 public:
  using Query = std::function<Published(const Machine& machine)>;

  // The query must tell the runs, and read texts as is done for what is held against it.
  explicit FaultMatrix(Query query) : query_(std::move(query)), whole_(query_(WholeMachine())) {}

  const Published& OfWholeMachine() const { return whole_; }

  // What is published of a machine that lacks the controller.
  const std::vector<Instance>& WithoutController(const Moved& controller);

  // What the fault cost, the least that it can be called.
  Cost CostOf(const Command& command, const Published& published);

  // What is wrong where a fault of the command cost something else than its column says; "" where it is right.
  std::string Misfit(const Command& command, std::size_t column, const Published& published);

 private:
  bool IsWithoutTool(const Published& published, const Command& command);

  Query query_;
  Published whole_;
  std::map<const Moved*, std::vector<Instance>> withoutController_;
};

// Whether the instance is of the controller that is published under the number.
bool IsOf(const Instance& instance, const std::string& number);

std::size_t ControllerCount(const std::vector<Instance>& instances);

// Every command that was run, each once.
std::vector<Command> CommandsOf(const Published& published);

}  // namespace fault_matrix
