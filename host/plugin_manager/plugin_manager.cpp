#include "host/plugin_manager/plugin_manager_access.h"

#include <utility>

#include <boost/make_shared.hpp>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

class TPluginManagerProvider {};

struct TPluginManagerNamespace::TState {
  std::vector<IPluginCallbacks*> plugins;
  TPluginManagerProvider provider;  // plug-ins do not use it
};

TPluginManagerNamespace::TPluginManagerNamespace() : state_(boost::make_shared<TState>()) {}
TPluginManagerNamespace::~TPluginManagerNamespace() = default;

TPluginManagerProvider* TPluginManagerNamespace::RegisterPlugin(IPluginCallbacks* plugin) {
  state_->plugins.push_back(plugin);
  return &state_->provider;
}

boost::shared_ptr<ICIMClass> TPluginManagerNamespace::GetClass(const std::string& name, const TPropertyMap&) {
  throw THXAException("The plug-in manager has no class \"" + name + "\".");
}

boost::shared_ptr<TPluginManagerNamespace> TPluginManagerAccess::Install() {
  auto manager = boost::make_shared<TPluginManagerNamespace>();
  SetPluginManager(manager);
  return manager;
}

const std::vector<IPluginCallbacks*>& TPluginManagerAccess::Plugins(const TPluginManagerNamespace& manager) {
  return manager.state_->plugins;
}

void TPluginManagerAccess::ReleasePlugins(TPluginManagerNamespace& manager) {
  for (IPluginCallbacks* const plugin : std::exchange(manager.state_->plugins, {})) plugin->Release();
}

}  // namespace NKVRHXA20
