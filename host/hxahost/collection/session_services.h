#pragma once

#include "host/hxahost/program/options.h"
#include "host/hxahost/terminal/progress.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/collection/session_tape.h"
#include "host/hxahost/result/tool_run.h"

namespace hxahost {

// While it lives, plug-ins get the services of the tape or the system, with what the options replace, a log that is
// kept, and their runs of tools kept and shown by a progress line.
class SessionServices {
 public:
  // All outlive it; progress may be absent.
  SessionServices(const QueryOptions& options, QueryLog& log, ToolRunList& runs, Progress* progress, SessionTape& tape);
  ~SessionServices();
  SessionServices(const SessionServices&) = delete;
  SessionServices& operator=(const SessionServices&) = delete;
};

}  // namespace hxahost
