#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Answers as a machine did when a bundle was recorded on it.
class BundleReplay {
 public:
  explicit BundleReplay(Bundle bundle);

  const Bundle& Recorded() const { return bundle_; }

  // This outlives them. The same command again gets what it got when it was run again; asked more often than it
  // was run, its last answer. So does the clock.
  NKVRHXA20::HostServices Services();

  // How long a query took, counted from 1; 0 where it did not come to its end.
  double QuerySeconds(unsigned number) const;

  // What was asked for first that the bundle does not hold; "" where it holds all of it. A plug-in goes on where a tool
  // fails, and publishes the less.
  const std::string& Missing() const { return missing_; }

  // The recorded commands that nothing has asked for until now.
  std::vector<std::string> UnusedRuns() const;

 private:
  // The runs of one command, by their places.
  struct SameRuns {
    std::vector<std::size_t> places;
    std::size_t used = 0;
  };

  NKVRHXA20::SpawnResult Spawn(const std::string& path, const std::vector<std::string>& arguments);
  std::string Capture(const std::string& path);
  NKVRHXA20::TCIMDateTime LocalTime();
  [[noreturn]] void ThrowMissing(const std::string& what);

  Bundle bundle_;
  std::map<std::vector<std::string>, SameRuns> runs_;  // by path and arguments
  std::size_t time_ = 0;                               // the place of the current time
  std::size_t timesUsed_ = 0;                          // how often it was given
  std::string missing_;
};

}  // namespace hxahost
