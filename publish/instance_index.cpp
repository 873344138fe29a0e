#include "publish/instance_index.h"

using namespace NKVRHXA20;

InstanceIndex::InstanceIndex(const PublishContext& context, const std::string& className, const InstanceKey& key) {
  for (const auto& instance : InstancesOf(context.nameSpace, className, context.lookupContext)) {
    instances_[key(*instance)].push_back(instance);
  }
}

const InstanceList& InstanceIndex::Find(const std::string& key) const {
  static const InstanceList none;
  const auto found = instances_.find(key);
  return found == instances_.end() ? none : found->second;
}

std::string ControllerNumberOf(ICIMInstance& instance) { return TextOf(instance, "ControllerNum"); }
