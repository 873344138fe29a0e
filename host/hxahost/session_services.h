#pragma once

#include "host/hxahost/options.h"
#include "host/hxahost/progress.h"
#include "host/hxahost/query_log.h"

namespace hxahost {

// While it lives, plug-ins get the system's services, with what the options replace, a log that is kept and a progress
// line for the commands that they run.
class SessionServices {
 public:
  // Both outlive it; progress may be absent.
  SessionServices(const QueryOptions& options, QueryLog& log, Progress* progress);
  ~SessionServices();
  SessionServices(const SessionServices&) = delete;
  SessionServices& operator=(const SessionServices&) = delete;
};

}  // namespace hxahost
