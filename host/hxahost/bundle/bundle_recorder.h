#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Keeps everything that a collection receives.
class BundleRecorder {
 public:
  // Records what is passed to the plug-in about the system, which does not come through the services. The directory is
  // UTF-8.
  BundleRecorder(std::optional<std::uint16_t> osType, std::string directory);

  // The services, with every answer recorded; this must outlive them.
  NKVRHXA20::HostServices Wrap(NKVRHXA20::HostServices services);

  // A command that was not run any more, and what the plug-in received instead of an answer.
  void AddNotAsked(const std::string& path, const std::vector<std::string>& arguments, const std::string& message);

  void AddQuery(double seconds) { bundle_.querySeconds.push_back(seconds); }

  const Bundle& Recorded() const { return bundle_; }

  // The same at the end of it: outputs may take a lot of memory.
  Bundle TakeRecorded() { return std::move(bundle_); }

 private:
  NKVRHXA20::SpawnResult Spawn(const NKVRHXA20::SpawnFunction& spawn, RecordedRun run);
  std::string Capture(const std::function<std::string(const std::string&)>& capture, const std::string& path);
  void AddTime(const NKVRHXA20::TCIMDateTime& time);

  Bundle bundle_;
};

}  // namespace hxahost
