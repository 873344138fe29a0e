#pragma once

#include <string>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"
#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// The host's log. Levels: 3 routine, 2 and below more serious, 100 and above for the person at the machine.
class HXA_INTERFACE ILogger {
 public:
  virtual ~ILogger() = default;
  virtual void Log(int level, const std::string& message) = 0;
};

// The host's well-known objects.
class HXACORE_API TRootObject {
 public:
  // The plug-in manager's namespace; null while no plug-in manager is set up.
  static boost::shared_ptr<ICIMNamespace> GetPluginManager();
  // Never null; belongs to the host.
  static ILogger* GetCoreLogger();
};

// What the operating system does for a plug-in. Each throws THXAException when it cannot.
class HXACORE_API TOSSpecific {
 public:
  static std::string GetMachineName();
  static TCIMDateTime GetLocalTime();

  // Runs a program without a shell, waits for it, and returns all that it wrote to standard output and standard
  // error, in the order written, whatever its exit status. A relative path is relative to the working directory.
  // The limit is in seconds; when it passes, the program and all that it started are ended.
  static std::string SpawnProcess(std::string path, std::vector<std::string> arguments, int limitSeconds);

  // The bytes of a file.
  static std::string CaptureFile(std::string path);
};

// Texts that mark a call as coming from the plug-in namespace.
class HXACORE_API TCIMSchemaHelper {
 public:
  static const char* const kContextName;
  static const char* const kPluginNSPName;
};

}  // namespace NKVRHXA20
