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

// Every command of the sample machine, with every possible fault of its answer, one at a time. The tables in
// fault_matrix.cpp show the cost of each fault; everything else is published unchanged.
namespace fault_matrix {

using Texts = std::vector<std::string>;

// The behaviour of a utility that is run: it prints a text, or cannot be run.
struct Behaviour {
  std::string text = {};
  std::string ending = {};  // if the utility did not end by itself
  std::optional<NKVRHXA20::SpawnFailure> failure = {};
};

using Machine = std::map<std::string, Behaviour>;  // by tool and arguments, "arcconf getconfig 1 al"

// One published instance, every property in its text: Name = "value" for texts and references.
struct Instance {
  std::string className;
  std::string text;

  friend bool operator==(const Instance&, const Instance&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Instance& instance) {
    return out << instance.className << instance.text.substr(0, 300);
  }
};

// The cost of a fault. Everything else is published unchanged, except the raw data of the command itself, which contain
// its output, if any.
enum Cost : char {
  kNothing = '.',
  kOwnValues = 'v',   // instances that the command feeds for its controller may be missing or different
  kOwnClasses = 'x',  // all instances that the command feeds for its controller are missing
  kAnyValues = 'w',   // the same as v, for every controller that the answer names
  kController = 'C',  // as if the controller were not there
  kTool = 'T',        // as if the utility had no controller
  kEverything = 'E',  // collection ends, and no data of the utilities is published
  kMore = '+',        // there is an additional controller
  kElse = '?',        // none of these; never right
};

struct Published {
  std::vector<Instance> instances;       // except the raw data
  std::map<std::string, Texts> rawData;  // by their commands
  Texts runs;                            // commands, if they are listed
  bool isAborted = false;                // the log contains the abort of the collection
};

// Used if instances of this class are not among the others.
constexpr const char* kRawData = "KVRSG_zxRawData";
constexpr const char* kTools[] = {"qcmdrun", "hrconf_64", "arcconf"};

// A controller of the sample machine, with another number.
struct Moved {
  const char* tool;
  int from;
  int to;
  const char* publishedAs;
};

std::span<const Moved> Controllers();

// The sample machine, in which no two controllers get the same number.
const Machine& WholeMachine();

// The machine, in which requests for a controller find none.
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

// One fault: what the utility does instead of answering.
struct Fault {
  const char* name;
  Behaviour (*Make)(const Command& command, const Machine& machine);
};

// In the order of the table's columns; the first column cuts texts off after a line.
std::span<const Fault> Faults();
constexpr std::size_t kCutOff = 0;
constexpr std::size_t kFirstFault = 1;

// Queries all classes, once, of utilities that behave as the machine defines, without any process.
using Read = void (*)(const QueryHost& host, Published& published);
Published QueryScripted(const Machine& machine, Read read);

// Compares the published instances of machines with a fault with the tables.
class FaultMatrix {
 public:
  using Query = std::function<Published(const Machine& machine)>;

  // The query must list the runs, and read texts in the same way for every machine.
  explicit FaultMatrix(Query query) : query_(std::move(query)), whole_(query_(WholeMachine())) {}

  const Published& OfWholeMachine() const { return whole_; }

  // The instances that a machine without the controller publishes.
  const std::vector<Instance>& WithoutController(const Moved& controller);

  // The cost of the fault: the lowest that matches.
  Cost CostOf(const Command& command, const Published& published);

  // Describes a cost of the command's fault that differs from its column; "" if they agree.
  std::string Misfit(const Command& command, std::size_t column, const Published& published);

 private:
  bool IsWithoutTool(const Published& published, const Command& command);

  Query query_;
  Published whole_;
  std::map<const Moved*, std::vector<Instance>> withoutController_;
};

// Whether the instance belongs to the controller that is published with the number.
bool IsOf(const Instance& instance, const std::string& number);

std::size_t ControllerCount(const std::vector<Instance>& instances);

// Every command that was run, each once.
std::vector<Command> CommandsOf(const Published& published);

}  // namespace fault_matrix
