#pragma once

#include "host/hxacore/host_services.h"
#include "host/hxahost/bundle/bundle_recorder.h"
#include "host/hxahost/collection/collection_options.h"
#include "host/hxahost/collection/query_log.h"
#include "host/hxahost/result/tool_run.h"
#include "host/hxahost/terminal/progress.h"

namespace hxahost {

// While it exists, plug-ins use these services: some are replaced by options, log entries are kept, and runs of tools
// are recorded and shown by a progress line.
class CollectionServices {
 public:
  // All must outlive it. The progress and the recorder, which records every answer of the services, may be null.
  CollectionServices(NKVRHXA20::HostServices services, const CollectionOptions& options, QueryLog& log,
                     ToolRunList& runs, Progress* progress, BundleRecorder* recorder);
  ~CollectionServices();
  CollectionServices(const CollectionServices&) = delete;
  CollectionServices& operator=(const CollectionServices&) = delete;
};

}  // namespace hxahost
