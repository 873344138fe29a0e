// The faults of tests/host/fault_matrix_test.cpp again, some of every kind, with everything real: the program, and
// processes that answer wrongly, not at all, or cannot be started. They cost what the same tables say, and what is
// published is what is published where the same is played without a process.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/json/json_view.h"
#include "tests/support/fault_matrix.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"
#include "tests/support/thoroughness.h"

namespace fault_matrix_test {

namespace fs = std::filesystem;
using namespace fault_matrix;
using Json = nlohmann::ordered_json;

Instance InstanceOf(const Json& json) {
  Instance instance{json["class"], {}};
  for (const auto& [name, value] : json["properties"].items()) {
    instance.text += "\n" + name + " = " + (value.is_string() ? '"' + value.get<std::string>() + '"' : value.dump());
  }
  return instance;
}

// What the JSON of one query says.
void ReadJson(const Json& json, Published& published) {
  for (const Json& instance : json["queries"][0]["instances"]) {
    const Json& properties = instance["properties"];
    if (instance["class"] == kRawData) {
      published.rawData[properties["Command"].get<std::string>()] = properties["RawResults"].get<Texts>();
    } else {
      published.instances.push_back(InstanceOf(instance));
    }
  }
  for (const Json& entry : json["queries"][0]["log"]) {
    if (entry["text"].get<std::string>().starts_with("Collection aborted: ")) published.isAborted = true;
  }
}

Published PlayedAsJson(const hxahost::InstanceList& instances) {
  std::ostringstream out;
  hxahost::BeginJson(out, {});
  hxahost::WriteQueryJson(out, {}, {1, instances, {}});
  hxahost::EndJson(out, {});
  Published published;
  ReadJson(Json::parse(out.str()), published);
  return published;
}

void ReadAll(const QueryHost& host, Published& published) {
  Published played = PlayedAsJson(host.repository->Published());
  published.instances = std::move(played.instances);
  published.rawData = std::move(played.rawData);
}

void ReadAllButRawData(const QueryHost& host, Published& published) {
  hxahost::InstanceList instances = host.repository->Published();
  std::erase_if(instances, [](const auto& instance) { return instance->Class().name == kRawData; });
  published.instances = PlayedAsJson(instances).instances;
}

Published WithoutProcesses(const Machine& machine) { return QueryScripted(machine, ReadAll); }

FaultMatrix& Matrix() {
  static FaultMatrix matrix(WithoutProcesses);
  return matrix;
}

// The machine of the tables, in a folder of its own, with programs for utilities.
class RealMachine {
 public:
  RealMachine() {
    for (const auto& [key, behaviour] : WholeMachine()) SetAnswer(key, behaviour);
    for (const char* const tool : kTools) PutTool(tool);
  }

  fs::path Tool(const std::string& name) const { return folder_.Path() / "zenx" / (name + ".exe"); }
  void PutTool(const std::string& name) const {
    fs::remove_all(Tool(name));
    fs::copy(ProgramFolder() / "test_child.exe", Tool(name));
  }

  void SetAnswer(const std::string& key, const Behaviour& behaviour) const {
    const fs::path file = folder_.Write("zenx/script/" + key, behaviour.text);
    const fs::path crash = file.string() + ".crash";
    fs::remove(crash);
    if (!behaviour.ending.empty()) folder_.Write(fs::relative(crash, folder_.Path()), "");
  }

  // The real program with real processes, asked for some classes; for all where none is named.
  Published Query(const Texts& classes = {}) const {
    Texts arguments = {"query",
                       "--format",
                       "json",
                       "--directory",
                       hxahost::Utf8FromPath(folder_.Path()),
                       "--machine-name",
                       "MACHINE",
                       "--local-time",
                       "20260305123015.250000+060"};
    for (const std::string& name : classes) arguments.insert(arguments.end(), {"--class", name});
    const ProgramResult result = RunHxahost(arguments);
    EXPECT_EQ(result.exitStatus, 0);
    EXPECT_EQ(result.err, "");
    Published published;
    ReadJson(Json::parse(result.out), published);
    return published;
  }

 private:
  TemporaryFolder folder_;
};

void ExpectTheSame(const Published& real, const Published& played) {
  EXPECT_EQ(real.instances, played.instances);
  EXPECT_EQ(real.rawData, played.rawData);
  EXPECT_EQ(real.isAborted, played.isAborted);
}

// The columns of what a process can do when it has been started. Behind the time limit of five minutes looks
// spawn_process_test.cpp, with a shorter one; not being started comes to a whole utility, and has a test of its own.
std::vector<std::size_t> RealColumns() {
  const Command any = Matrix().Commands().front();
  std::vector<std::size_t> columns = {kCutOff};
  for (std::size_t column = 0; column < Faults().size(); ++column) {
    if (!Faults()[column].Make(any, WholeMachine()).failure) columns.push_back(kFirstFault + column);
  }
  return columns;
}

bool IsHuge(const Behaviour& behaviour) { return behaviour.text.size() > (std::size_t{1} << 20U); }

// Sanitizers make the program take minutes for a line of 16 MiB, so they get a shorter one.
Behaviour BehaviourOf(const Command& command, std::size_t column) {
  const std::string& text = WholeMachine().at(command.Key()).text;
  if (column == kCutOff) return {text.substr(0, text.find('\n', text.size() / 3) + 1)};
  Behaviour behaviour = Faults()[column - kFirstFault].Make(command, WholeMachine());
  if (IsHuge(behaviour)) behaviour.text.erase(0, behaviour.text.size() - behaviour.text.size() / CasesForOneTry());
  return behaviour;
}

Texts AllClassesButRawData() {
  Texts names;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.name != kRawData) names.emplace_back(entry.name);
  }
  return names;
}

// Runs the program while one command answers otherwise. An answer of many mebibytes is not asked for as raw data: JSON
// of it takes sanitizers a minute.
void ExpectCost(const RealMachine& machine, const Command& command, std::size_t column) {
  const Behaviour behaviour = BehaviourOf(command, column);
  const bool isHuge = IsHuge(behaviour);
  Machine faulty = WholeMachine();
  faulty[command.Key()] = behaviour;
  machine.SetAnswer(command.Key(), behaviour);
  const Published published = machine.Query(isHuge ? AllClassesButRawData() : Texts());
  EXPECT_EQ(Matrix().Misfit(command, column, published), "");
  ExpectTheSame(published, QueryScripted(faulty, isHuge ? ReadAllButRawData : ReadAll));
  machine.SetAnswer(command.Key(), WholeMachine().at(command.Key()));
}

// The first command of each kind that the tables have.
std::vector<Command> OneOfEachKind() {
  std::vector<Command> commands;
  std::set<std::string> kinds;
  for (const Command& command : Matrix().Commands()) {
    if (kinds.insert(KindName(command)).second) commands.push_back(command);
  }
  return commands;
}

TEST(FaultMatrix, OfRealProcessesCostsWhatTheTablesSay) {
  const RealMachine machine;
  ExpectTheSame(machine.Query(), Matrix().OfWholeMachine());
  std::set<std::size_t> columns;
  std::set<std::string> tools;
  std::size_t number = 0;
  for (const Command& command : OneOfEachKind()) {
    for (const std::size_t column : RealColumns()) {
      if (number++ % kCasesForOneRun != 0) continue;
      SCOPED_TRACE(command.Key() + ": " + (column == kCutOff ? "cut off" : Faults()[column - kFirstFault].name));
      ExpectCost(machine, command, column);
      columns.insert(column);
      tools.insert(command.tool);
    }
  }
  EXPECT_EQ(columns.size(), RealColumns().size());
  EXPECT_EQ(tools.size(), std::size(kTools));
}

// What stands in the place of a utility that cannot be started.
struct Unstartable {
  const char* name;
  void (*Put)(const fs::path& tool);
};

constexpr Unstartable kUnstartable[] = {
    {"nothing",                [](const fs::path&) {}                                             },
    {"a folder",               [](const fs::path& tool) { fs::create_directory(tool); }           },
    {"an empty file",          [](const fs::path& tool) { std::ofstream(tool).flush(); }          },
    {"a text",                 [](const fs::path& tool) { std::ofstream(tool) << "no program\n"; }},
    {"a text that may be run",
     [](const fs::path& tool) {
       std::ofstream(tool) << "no program\n";
       fs::permissions(tool, fs::perms::owner_exec, fs::perm_options::add);
     }                                                                                            },
    {"a program cut in two",
     [](const fs::path& tool) {
       fs::copy(ProgramFolder() / "test_child.exe", tool);
       fs::resize_file(tool, 200);
     }                                                                                            },
};

Machine WithoutControllersOf(const std::string& tool) {
  Machine machine = WholeMachine();
  for (const Moved& controller : Controllers()) {
    if (controller.tool == tool) machine = MachineWithout(machine, controller);
  }
  return machine;
}

Machine WithoutTool(const std::string& tool) {
  Machine machine = WholeMachine();
  for (auto& [key, behaviour] : machine) {
    if (key.starts_with(tool + " ")) behaviour = {"", "", NKVRHXA20::SpawnFailure::kNotStarted};
  }
  return machine;
}

TEST(FaultMatrix, AUtilityThatCannotBeStartedCostsItsControllersAlone) {
  const RealMachine machine;
  std::size_t number = 0;
  for (const char* const tool : kTools) {
    const std::vector<Instance> others = WithoutProcesses(WithoutControllersOf(tool)).instances;
    const Published played = WithoutProcesses(WithoutTool(tool));
    EXPECT_EQ(played.instances, others);
    for (const Unstartable& each : kUnstartable) {
      if (number++ % (kCasesForOneRun / 2) != 0) continue;
      SCOPED_TRACE(tool + std::string(": ") + each.name);
      fs::remove(machine.Tool(tool));
      each.Put(machine.Tool(tool));
      ExpectTheSame(machine.Query(), played);
      machine.PutTool(tool);
    }
  }
}

}  // namespace fault_matrix_test
