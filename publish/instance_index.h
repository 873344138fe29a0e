#pragma once

#include <functional>
#include <string>
#include <unordered_map>

#include "publish/publish_common.h"
#include "publish/publish_context.h"

// What an instance is found by.
using InstanceKey = std::function<std::string(NKVRHXA20::ICIMInstance&)>;

// The instances that the host holds of a class, by a key, so that linking two classes costs as much as they have
// instances and links, and not their product.
class InstanceIndex {
 public:
  InstanceIndex(const PublishContext& context, const std::string& className, const InstanceKey& key);

  // The instances with that key, in the order in which they were committed. Empty where there are none.
  const InstanceList& Find(const std::string& key) const;

 private:
  std::unordered_map<std::string, InstanceList> instances_;
};

// The key by which most classes are linked to their controller.
std::string ControllerNumberOf(NKVRHXA20::ICIMInstance& instance);
