// Some of the faults of tests/host/fault_matrix_test.cpp again, with the real program and real processes that answer
// wrongly, not at all, or cannot be started. The published instances must equal those without processes.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "host/hxahost/text/utf8.h"
#include "host/hxahost/views/json/json_view.h"
#include "tests/support/fault_matrix.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

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

// The contents of the JSON of one query.
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

void ReadAsJson(const QueryHost& host, Published& published) {
  std::ostringstream out;
  hxahost::BeginJson(out, {});
  hxahost::WriteQueryJson(out, {}, {1, host.repository->Published(), {}});
  hxahost::EndJson(out, {});
  ReadJson(Json::parse(out.str()), published);
}

Published WithoutProcesses(const Machine& machine) { return QueryScripted(machine, ReadAsJson); }

// The machine of the tables, in a folder of its own, with programs as utilities.
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

  // The real program with real processes.
  Published Query() const {
    const ProgramResult result =
        RunHxahost({"query", "--format", "json", "--directory", hxahost::Utf8FromPath(folder_.Path()), "--machine-name",
                    "MACHINE", "--local-time", "20260305123015.250000+060"});
    const int failure = result.err.starts_with("hxahost: Not all is shown") ? 1 : 4;
    EXPECT_EQ(result.exitStatus, result.err.empty() ? 0 : failure) << result.err;
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

// Shortens texts that real processes would write for minutes.
Behaviour BehaviourOf(const Fault& fault, const Command& command) {
  constexpr std::size_t kMost = std::size_t{1} << 20U;
  Behaviour behaviour = fault.Make(command, WholeMachine());
  if (behaviour.text.size() > kMost) behaviour.text.erase(0, behaviour.text.size() - kMost);
  return behaviour;
}

// A process that cannot be started affects a whole utility, and has a test of its own; spawn_process_test.cpp tests the
// time limit.
TEST(FaultMatrix, OfRealProcessesIsTheSameAsWithoutThem) {
  const RealMachine machine;
  const Published whole = WithoutProcesses(WholeMachine());
  ExpectTheSame(machine.Query(), whole);
  std::size_t number = 0;
  for (const Command& command : CommandsOf(whole)) {
    for (const Fault& fault : Faults()) {
      const Behaviour behaviour = BehaviourOf(fault, command);
      if (behaviour.failure || number++ % kCasesForOneRun != 0) continue;
      SCOPED_TRACE(command.Key() + ": " + fault.name);
      Machine faulty = WholeMachine();
      faulty[command.Key()] = behaviour;
      machine.SetAnswer(command.Key(), behaviour);
      ExpectTheSame(machine.Query(), WithoutProcesses(faulty));
      machine.SetAnswer(command.Key(), WholeMachine().at(command.Key()));
    }
  }
}

// Replaces a utility that cannot be started.
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

TEST(FaultMatrix, AUtilityThatCannotBeStartedCostsOnlyItsControllers) {
  const RealMachine machine;
  std::size_t number = 0;
  for (const char* const tool : kTools) {
    const std::vector<Instance> others = WithoutProcesses(WithoutControllersOf(tool)).instances;
    const Published played = WithoutProcesses(WithoutTool(tool));
    EXPECT_EQ(played.instances, others);
    for (const Unstartable& each : kUnstartable) {
      if (number++ % (kCasesForOneRun / 5) != 0) continue;
      SCOPED_TRACE(tool + std::string(": ") + each.name);
      fs::remove(machine.Tool(tool));
      each.Put(machine.Tool(tool));
      ExpectTheSame(machine.Query(), played);
      machine.PutTool(tool);
    }
  }
}

}  // namespace
