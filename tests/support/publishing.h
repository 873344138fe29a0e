#pragma once

#include <memory>
#include <string>

#include "collect/zenx_collect_data.h"
#include "logs/collect_raid_mgr_data.h"
#include "publish/publish_context.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/scripted_services.h"

// Publishes hand-made records into a fake namespace.
struct Publishing {
  // Calls a routine for a class as a query that names the class would.
  void Run(PublishRoutine routine, const std::string& className) {
    ZenxCollectData collector(&log, controllers, rawData);
    CollectRaidMgrData raidManagerLog(&log);
    const NKVRHXA20::TPropertyMap lookupContext;
    log.entries.clear();
    routine({nameSpace, lookupContext, collector, raidManagerLog, &log}, *nameSpace.GetClass(className, {}));
  }

  // A new controller at the end of the list.
  ZenxController& AddController(const std::string& number) {
    controllers.push_back(std::make_shared<ZenxController>(&log));
    controllers.back()->ControllerNum = number;
    return *controllers.back();
  }

  ScriptedServices services;
  RecordingLog log;
  FakeNamespace nameSpace;
  ControllerList controllers;
  RawDataList rawData;
};

// A new record at the end of a controller's list.
template <class Record>
Record& Add(std::vector<std::shared_ptr<Record>>& records) {
  return *records.emplace_back(std::make_shared<Record>(nullptr));
}
