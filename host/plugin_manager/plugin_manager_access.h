#pragma once

#include <vector>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/plugin_manager.h"

namespace NKVRHXA20 {

// The host's side of the plug-in manager.
class PLUGIN_NSP_API TPluginManagerAccess {
 public:
  // Makes a plug-in manager, which TRootObject::GetPluginManager() then returns.
  static boost::shared_ptr<TPluginManagerNamespace> Install();

  // The plug-ins in the order in which they registered.
  static const std::vector<IPluginCallbacks*>& Plugins(const TPluginManagerNamespace& manager);

  // Releases every plug-in through its Release operation and removes it from the list.
  static void ReleasePlugins(TPluginManagerNamespace& manager);
};

}  // namespace NKVRHXA20
