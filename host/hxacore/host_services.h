#pragma once

#include <functional>
#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "host/hxacore/spawn_result.h"
#include "plugin/host_interface/cim.h"
#include "plugin/host_interface/date_time.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

using SpawnFunction =
    std::function<SpawnResult(const std::string& path, const std::vector<std::string>& arguments, int limitSeconds)>;

// Everything that plug-ins receive from outside comes through one value of this kind. A program replaces it, completely
// or in part, to script, record or replay.
struct HostServices {
  SpawnFunction spawn;
  std::function<std::string(const std::string& path)> capture;
  std::function<std::string()> machineName;
  std::function<TCIMDateTime()> localTime;
  std::function<void(int level, const std::string& message)> log;
};

// The services of the system: real processes, real files, its clock and name; log entries are dropped.
HXACORE_API HostServices RealServices();

// The current services are RealServices() until they are replaced. Do not call it while a query runs.
HXACORE_API const HostServices& CurrentServices();
HXACORE_API void SetServices(HostServices services);

// Sets the value that TRootObject::GetPluginManager() returns.
HXACORE_API void SetPluginManager(boost::shared_ptr<ICIMNamespace> manager);

}  // namespace NKVRHXA20
