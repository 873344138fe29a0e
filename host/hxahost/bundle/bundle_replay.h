#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Ends a replay: what was asked for is not in the bundle.
class NotRecorded : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Answers as the machine did on which the bundle was recorded.
class BundleReplay {
 public:
  explicit BundleReplay(Bundle bundle);

  const Bundle& Recorded() const { return *bundle_; }
  const std::shared_ptr<const Bundle>& SharedBundle() const { return bundle_; }

  // This must outlive them. A repeated command gets its recorded answers in their order, and then the last one again.
  // The clock does the same.
  NKVRHXA20::HostServices Services();

  // The duration of a query, counted from 1; 0 if it did not finish.
  double QuerySeconds(unsigned number) const;

  // The first request that the bundle has no answer for; "" if there is none. A plug-in continues after the failure of
  // a tool and publishes less, so this shows that the replay is incomplete.
  const std::string& Missing() const { return missing_; }

  // The recorded commands that were not requested so far.
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

  std::shared_ptr<const Bundle> bundle_;
  std::map<std::vector<std::string>, SameRuns> runs_;  // by path and arguments
  std::size_t time_ = 0;                               // the place of the current time
  std::size_t timesUsed_ = 0;                          // how often it was returned
  std::string missing_;
};

}  // namespace hxahost
