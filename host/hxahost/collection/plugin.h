#pragma once

#include <cstdint>
#include <filesystem>
#include <mutex>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "platform/recorded_system.h"
#include "plugin/host_interface/cim.h"
#include "plugin/host_interface/plugin_manager.h"

namespace hxahost {

// A plug-in, from loading to release. Its library stays loaded, because code that it keeps for the process may still
// run.
class Plugin {
 public:
  // The absolute path of the file. Throws ProgramError if it cannot be loaded or registers nothing to query.
  explicit Plugin(const std::filesystem::path& file);
  ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  // Replaces the system's answers for the plug-in by those of a recorded system. Throws ProgramError if that fails.
  void AnswerAs(const RecordedSystem& recorded);

  // The plug-in reads the RAID manager's log only up to this size. Other plug-ins have no limit.
  void SetLargestRaidLog(std::uint64_t bytes);

  // Lets the plug-in publish the classes, in their order. Plug-ins expect one thread at a time, so others wait.
  // Exceptions of the plug-in are passed on.
  void Query(const boost::shared_ptr<NKVRHXA20::ICIMNamespace>& nameSpace,
             const std::vector<boost::shared_ptr<NKVRHXA20::ICIMClass>>& classes);

 private:
  boost::shared_ptr<NKVRHXA20::TPluginManagerNamespace> manager_;
  NKVRHXA20::IPluginBasicQueryCallbacks* query_ = nullptr;
  std::mutex oneAtATime_;
};

}  // namespace hxahost
