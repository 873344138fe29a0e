#pragma once

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/cim.h"
#include "plugin/host_interface/export.h"
#include "plugin/host_interface/plugin_callbacks.h"

namespace NKVRHXA20 {

// What the plug-in manager makes of a registered plug-in.
class TPluginManagerProvider;

// The plug-in manager's namespace, in plugin.nsp. Plug-ins find it through TRootObject::GetPluginManager().
class PLUGIN_NSP_API TPluginManagerNamespace : public ICIMNamespace {
 public:
  TPluginManagerNamespace();
  ~TPluginManagerNamespace() override;

  // Keeps the plug-in and calls it from then on; the host releases it through its Release operation.
  TPluginManagerProvider* RegisterPlugin(IPluginCallbacks* plugin);

  // The plug-in manager publishes no class of its own: every name is unknown here.
  boost::shared_ptr<ICIMClass> GetClass(const std::string& name, const TPropertyMap& context) override;

 private:
  friend class TPluginManagerAccess;
  struct TState;
  boost::shared_ptr<TState> state_;
};

}  // namespace NKVRHXA20
