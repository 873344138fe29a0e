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

// A plug-in, from its loading to its release. Its library stays loaded: what it keeps for the process may still run.
class Plugin {
 public:
  // The file by its absolute path. Throws ProgramError when it cannot be loaded or registers nothing to query.
  explicit Plugin(const std::filesystem::path& file);
  ~Plugin();
  Plugin(const Plugin&) = delete;
  Plugin& operator=(const Plugin&) = delete;

  // Has it take a recorded system's answers for those of this one. Throws ProgramError where it cannot.
  void AnswerAs(const RecordedSystem& recorded);

  // The RAID manager's log is read where it has at most so many bytes. Other plug-ins have no limit.
  void SetLargestRaidLog(std::uint64_t bytes);

  // Has it publish the classes, in their order; plug-ins count on one thread at a time, so further ones wait. What it
  // throws passes on.
  void Query(const boost::shared_ptr<NKVRHXA20::ICIMNamespace>& nameSpace,
             const std::vector<boost::shared_ptr<NKVRHXA20::ICIMClass>>& classes);

 private:
  boost::shared_ptr<NKVRHXA20::TPluginManagerNamespace> manager_;
  NKVRHXA20::IPluginBasicQueryCallbacks* query_ = nullptr;
  std::mutex oneAtATime_;
};

}  // namespace hxahost
