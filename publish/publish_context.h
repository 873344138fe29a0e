#pragma once

#include <boost/shared_ptr.hpp>

#include "collect/collection_driver.h"
#include "collect/host_handle.h"
#include "logs/collect_raid_mgr_data.h"
#include "plugin/host_interface/cim.h"

// What a publication routine works with. All of it outlives the routine.
struct PublishContext {
  NKVRHXA20::ICIMNamespace& nameSpace;
  const NKVRHXA20::TPropertyMap& lookupContext;  // passed whenever the namespace is asked for a class
  ZenxCollectData& collector;
  CollectRaidMgrData& raidManagerLog;
  HostHandle host;
};

// Publishes the instances of one class: makes each, sets its properties, commits it.
using PublishRoutine = void (*)(const PublishContext& context, NKVRHXA20::ICIMClass& publishedClass);
