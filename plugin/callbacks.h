#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "collect/host_handle.h"
#include "platform/raid_log_limit.h"
#include "platform/recorded_system.h"
#include "plugin/host_interface/plugin_callbacks.h"

// The plug-in as the host sees it. Registers itself with the host's plug-in manager when it is made; from then on it
// belongs to the host, which releases it. The host calls by position in the first two interfaces; what others may ask
// for follows them.
class TZenxCallbacks final : public NKVRHXA20::IPluginCallbacks,
                             public NKVRHXA20::IPluginBasicQueryCallbacks,
                             public IReplaysSystem,
                             public ILimitsRaidLog {
 public:
  // Throws TBrokenInvariant when the host has no plug-in manager.
  TZenxCallbacks();

  int Unnamed1() override;
  std::string GetPluginName() override;
  std::string GetVersion() override;
  std::string GetSecondVersion() override;
  void Release() override;
  void Unnamed6() override;
  void Unnamed7() override;

  void Query(boost::shared_ptr<NKVRHXA20::ICIMNamespace> nameSpace,
             const std::vector<boost::shared_ptr<NKVRHXA20::ICIMClass>>& classes) override;

  // Both to be called before the first query.
  void AnswerAs(const RecordedSystem& recorded) override;
  void SetLargestRaidLog(std::uint64_t bytes) override;

 private:
  HostHandle host_;
};

// Why the system tells a library something, as Windows numbers the reasons.
constexpr unsigned kProcessAttach = 1;

// The library's notification. At process attach it makes and registers the callbacks and returns 1, or 0 when there
// is no memory for them; what their construction throws passes on. Any other reason returns 1 and does nothing.
int OnLibraryNotification(unsigned reason);
