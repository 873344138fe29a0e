#include "publish/publish_common.h"

#include <exception>

#include <boost/make_shared.hpp>

using namespace NKVRHXA20;

InstanceList InstancesOf(ICIMNamespace& nameSpace, const std::string& className, const TPropertyMap& lookupContext) {
  InstanceList instances;
  const TCallbackHolder<ICIMInstance> addToInstances(boost::make_shared<TAddToVectorCallback<ICIMInstance>>(instances));
  nameSpace.GetClass(className, lookupContext)->EnumerateInstances(addToInstances, true, {});
  return instances;
}

std::string TextOf(ICIMInstance& instance, const std::string& property) {
  return instance.GetProperty(property, {})->GetValue({});
}

TCIMValue StringArray(const std::vector<std::string>& texts) {
  return {kCIMString, 0, std::vector<TCIMValue>(texts.begin(), texts.end())};
}

ControllerList ReadControllers(HostHandle host, const std::function<ControllerList()>& read) {
  try {
    return read();
  } catch (const std::exception&) {
    LogReason(host, "GetControllers() Failed: ");
    return {};
  }
}

void LogReason(HostHandle host, const std::string& reason) { Log(host, kLogRoutine, reason + "inside ZxPlugin"); }
