#include "host/hxacore/host_services.h"

#include <chrono>
#include <utility>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/whole_file.h"
#include "plugin/host_interface/services.h"

namespace NKVRHXA20 {

namespace {

// The log of plug-ins, passed on to the current services.
class TCoreLogger final : public ILogger {
 public:
  void Log(int level, const std::string& message) override { CurrentServices().log(level, message); }
};

// One of each for the process, because plug-ins call static functions.
struct HostState {
  HostServices services = RealServices();
  TCoreLogger logger;
  boost::shared_ptr<ICIMNamespace> pluginManager;
};

HostState& State() {
  static HostState state;
  return state;
}

SpawnResult TimedSpawn(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds) {
  using Clock = std::chrono::steady_clock;
  const auto begin = Clock::now();
  const auto seconds = [begin] { return std::chrono::duration<double>(Clock::now() - begin).count(); };
  try {
    SpawnResult result = SpawnProcess(path, arguments, limitSeconds);
    result.seconds = seconds();
    return result;
  } catch (const TSpawnException& failure) {
    throw TSpawnException(failure.Failure(), failure.what(), seconds());
  }
}

}  // namespace

HostServices RealServices() {
  const auto capture = [](const std::string& path) { return CaptureFile(path); };
  return {TimedSpawn, capture, MachineName, LocalTime, [](int, const std::string&) {}};
}

const HostServices& CurrentServices() { return State().services; }
void SetServices(HostServices services) { State().services = std::move(services); }
void SetPluginManager(boost::shared_ptr<ICIMNamespace> manager) { State().pluginManager = std::move(manager); }

boost::shared_ptr<ICIMNamespace> TRootObject::GetPluginManager() { return State().pluginManager; }
ILogger* TRootObject::GetCoreLogger() { return &State().logger; }

std::string TOSSpecific::GetMachineName() { return CurrentServices().machineName(); }
TCIMDateTime TOSSpecific::GetLocalTime() { return CurrentServices().localTime(); }
// The host's interface takes texts by value.
// NOLINTBEGIN(performance-unnecessary-value-param)
std::string TOSSpecific::SpawnProcess(std::string path, std::vector<std::string> arguments, int limitSeconds) {
  return CurrentServices().spawn(path, arguments, limitSeconds).output;
}
std::string TOSSpecific::CaptureFile(std::string path) { return CurrentServices().capture(path); }
// NOLINTEND(performance-unnecessary-value-param)

const char* const TCIMSchemaHelper::kContextName = "ContextName";
const char* const TCIMSchemaHelper::kPluginNSPName = "plugin";

}  // namespace NKVRHXA20
