#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "collect/host_handle.h"
#include "plugin/host_interface/cim.h"
#include "publish/publish_context.h"

// One class that a query may name.
struct CatalogueEntry {
  std::string_view name;
  PublishRoutine routine;
};

// The classes that the plug-in knows, in its own order. A query publishes in the order in which it names them.
std::span<const CatalogueEntry> Catalogue();

// What stays from query to query. The plug-in has one, for the life of the process; it is never freed.
struct QueryState {
  unsigned callCounter = 0;
  bool collectPending = true;
  std::unique_ptr<ZenxCollectData> collector;
  std::unique_ptr<CollectRaidMgrData> raidManagerLog;
};

// Publishes the classes in their order, one thread at a time. The first call collects before; later ones publish the
// same records again. A collection that fails is logged, and the query goes on with what it gathered before. What the
// host's own operations throw passes on; a RAID manager log collector that could not be made is made by the next call.
void RunQuery(QueryState& state, HostHandle host, NKVRHXA20::ICIMNamespace& nameSpace,
              const std::vector<boost::shared_ptr<NKVRHXA20::ICIMClass>>& classes);
