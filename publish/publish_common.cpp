#include "publish/publish_common.h"

#include <boost/make_shared.hpp>

using namespace NKVRHXA20;

InstanceList InstancesOf(ICIMNamespace& nameSpace, const std::string& className, const TPropertyMap& lookupContext) {
  InstanceList instances;
  const TCallbackHolder<ICIMInstance> addToInstances(boost::make_shared<TAddToVectorCallback<ICIMInstance>>(instances));
  nameSpace.GetClass(className, lookupContext)->EnumerateInstances(addToInstances, true, {});
  return instances;
}

void LogReason(HostHandle host, const std::string& reason) { Log(host, kLogRoutine, reason + "inside ZxPlugin"); }
