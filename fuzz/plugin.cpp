// The whole plug-in in the stand-alone host, all classes queried twice. The texts of the input are: the system's type
// and version, the RAID manager's log, and the answers of the three utilities.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "collect/ascii_text.h"
#include "collect/collection_driver.h"
#include "collect/tool_text.h"
#include "fuzz/support/fuzzed_machine.h"
#include "fuzz/support/fuzzer.h"
#include "fuzz/support/instance_texts.h"
#include "fuzz/support/log_folder.h"
#include "fuzz/support/provenance.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "logs/collect_raid_mgr_data.h"
#include "plugin/host_interface/services.h"
#include "plugin/query.h"

using namespace NKVRHXA20;

namespace {

constexpr std::size_t kFirstAnswer = 2;
constexpr std::string_view kDrives = "KVRSG_zxDiskDrive";
constexpr std::string_view kLogEvents = "KVRSG_LogRecord_RAIDMgrEvent";

// "82 6.1": the type of the operating system and its version. Without a number, the host does not know the type.
struct System {
  std::optional<std::uint16_t> type;
  std::string version;
};

System ReadSystem(const std::string& text) {
  const std::vector<std::string> words = Split(text, ' ');
  System system;
  if (BeginsWithDigit(words[0])) system.type = static_cast<std::uint16_t>(LeadingNumber(words[0]));
  if (words.size() > 1) system.version = words[1].c_str();
  return system;
}

class PluginRun {
 public:
  explicit PluginRun(const System& system) : repository_(TRepository::Make(system.type)) {
    ProcessWideEventCounter() = 0;
    for (const CatalogueEntry& entry : Catalogue()) {
      classes_.push_back(repository_->GetClass(std::string(entry.name), {}));
    }
  }

  hxahost::InstanceList Query() {
    repository_->BeginQuery(classes_);
    RunQuery(state_, TRootObject::GetCoreLogger(), *repository_, classes_);
    return repository_->Published();
  }

  ControllerList Controllers() const { return state_.collector->GetControllers(); }

 private:
  boost::shared_ptr<TRepository> repository_;
  std::vector<boost::shared_ptr<ICIMClass>> classes_;
  QueryState state_;
};

// The fields of a drive's identifier.
using DriveFields = std::tuple<std::string, int, int, std::string>;

std::vector<DriveFields> FieldsOfDrives(const ControllerList& controllers) {
  std::vector<DriveFields> fields;
  for (const auto& controller : controllers) {
    for (const auto& drive : controller->PhysicalDevices) {
      fields.emplace_back(Trimmed(controller->ControllerNum), LeadingNumber(drive->Channel),
                          LeadingNumber(drive->ScsiId), Trimmed(drive->DeviceIdSuffix));
    }
  }
  return fields;
}

// Two drives have the same identifier if and only if they have the same fields.
void RequireUniqueIdentifiers(const hxahost::InstanceList& instances, const ControllerList& controllers) {
  const std::vector<DriveFields> fields = FieldsOfDrives(controllers);
  std::map<std::string, DriveFields> byIdentifier;
  std::map<DriveFields, std::string> byFields;
  std::size_t drive = 0;
  for (const auto& instance : instances) {
    if (instance->Class().name != kDrives) continue;
    Require(drive < fields.size(), "no more drives are published than exist");
    const std::string identifier = instance->Properties()[1].value;
    Require(byIdentifier.emplace(identifier, fields[drive]).first->second == fields[drive],
            "an identifier tells drives apart", identifier);
    Require(byFields.emplace(fields[drive], identifier).first->second == identifier, "a drive has one identifier",
            identifier);
    ++drive;
  }
  Require(drive == fields.size(), "every drive is published");
}

void RequireProvenance(const hxahost::InstanceList& instances, const std::string& input) {
  const Printed printed(input);
  for (const auto& instance : instances) {
    for (const auto& [name, value] : instance->Properties()) {
      for (const std::string& text : TextsWithin(value)) printed.RequireBytes(name, text);
    }
  }
}

// Leaves out log events, because the first query reads the log to its end.
std::vector<std::string> WithoutLogEvents(const hxahost::InstanceList& instances) {
  hxahost::InstanceList others;
  std::ranges::copy_if(instances, std::back_inserter(others),
                       [](const auto& instance) { return instance->Class().name != kLogEvents; });
  return InstanceTexts(others);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Sections input(data, size);
  const System system = ReadSystem(input.TextAt(0));
  const FuzzedMachine machine(input, kFirstAnswer, {kQcmdrun, kHrconf, kArcconf});
  SetRaidManagerLog(system.version, input.TextAt(1));

  PluginRun run(system);
  const hxahost::InstanceList first = run.Query();
  const std::size_t runs = machine.Runs();
  Require(runs <= machine.MostRuns(), "the utilities are not run more often than permitted");
  RequireUniqueIdentifiers(first, run.Controllers());
  RequireProvenance(first, std::string(AsText(data, size)));

  const hxahost::InstanceList second = run.Query();
  Require(machine.Runs() == runs, "a second query runs no utility");
  Require(WithoutLogEvents(first) == WithoutLogEvents(second), "a second query publishes the same");
  Require(WithoutLogEvents(second) == InstanceTexts(second), "a second query finds no new event");

  const std::vector<std::string> texts = InstanceTexts(first);
  PluginRun again(system);
  Require(InstanceTexts(again.Query()) == texts, "the same machine produces the same instances");
  return 0;
}
