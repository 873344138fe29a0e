#pragma once

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle_recorder.h"
#include "host/hxahost/collection/collection_options.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/result/tool_run.h"
#include "host/hxahost/terminal/progress.h"

namespace hxahost {

// While it lives, plug-ins get these services, with what the options replace, a log that is kept, and their runs of
// tools kept and shown by a progress line.
class CollectionServices {
 public:
  // All outlive it. Progress and recorder, which keeps all that the services say, may be absent.
  CollectionServices(NKVRHXA20::HostServices services, const CollectionOptions& options, QueryLog& log,
                     ToolRunList& runs, Progress* progress, BundleRecorder* recorder);
  ~CollectionServices();
  CollectionServices(const CollectionServices&) = delete;
  CollectionServices& operator=(const CollectionServices&) = delete;
};

}  // namespace hxahost
