#include "tests/support/query_host.h"

#include "tests/support/fake_namespace.h"

using namespace NKVRHXA20;

void QueryHost::Hold(const ControllerList& controllers, const RawDataList& rawData) {
  state.collectPending = false;
  state.collector = std::make_unique<ZenxCollectData>(&log, controllers, rawData);
  state.raidManagerLog = std::make_unique<CollectRaidMgrData>(&log);
  log.entries.clear();
}

void QueryHost::Query(const std::vector<std::string>& classNames) {
  std::vector<boost::shared_ptr<ICIMClass>> classes;
  for (const std::string& name : classNames) classes.push_back(repository->GetClass(name, {}));
  repository->BeginQuery(classes);
  RunQuery(state, &log, *repository, classes);
}

std::vector<std::string> QueryHost::PublishedClasses() const {
  std::vector<std::string> names;
  for (const auto& instance : repository->Published()) names.emplace_back(instance->Class().name);
  return names;
}

std::vector<std::vector<std::string>> QueryHost::Published(const std::string& className) const {
  std::vector<std::vector<std::string>> instances;
  for (const auto& instance : repository->Published()) {
    if (instance->Class().name != className) continue;
    std::vector<std::string>& properties = instances.emplace_back();
    for (const auto& [name, value] : instance->Properties()) {
      properties.push_back(std::string(name) + " = " + Rendered(value));
    }
  }
  return instances;
}

std::vector<std::string> QueryHost::Published(const std::string& className, const std::string& property) const {
  std::vector<std::string> values;
  for (const auto& instance : repository->Published()) {
    if (instance->Class().name != className) continue;
    for (const auto& [name, value] : instance->Properties()) {
      if (name == property) values.push_back(value);
    }
  }
  return values;
}
