#include "plugin/callbacks.h"

#include <new>

#include <boost/shared_ptr.hpp>

#include "plugin/host_interface/plugin_manager.h"
#include "plugin/host_interface/services.h"
#include "plugin/query.h"

using namespace NKVRHXA20;

namespace {

// Never freed: the host may still query while the process ends.
QueryState& ProcessWideState() {
  static auto* const state = new QueryState;
  return *state;
}

}  // namespace

TZenxCallbacks::TZenxCallbacks() : host_(TRootObject::GetCoreLogger()) {
  const auto manager = boost::dynamic_pointer_cast<TPluginManagerNamespace>(TRootObject::GetPluginManager());
  manager->RegisterPlugin(this);
}

int TZenxCallbacks::Unnamed1() { return 0; }
std::string TZenxCallbacks::GetPluginName() { return "Zenx collector"; }
std::string TZenxCallbacks::GetVersion() { return "1.0"; }
std::string TZenxCallbacks::GetSecondVersion() { return "1.0"; }
void TZenxCallbacks::Release() { delete this; }
void TZenxCallbacks::Unnamed6() {}
void TZenxCallbacks::Unnamed7() {}

void TZenxCallbacks::Query(boost::shared_ptr<ICIMNamespace> nameSpace,
                           const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  RunQuery(ProcessWideState(), host_, *nameSpace, classes);
}

void TZenxCallbacks::AnswerAs(const RecordedSystem& recorded) { ::AnswerAs(recorded); }

void TZenxCallbacks::SetLargestRaidLog(std::uint64_t bytes) { ::SetLargestRaidLog(bytes); }

int OnLibraryNotification(unsigned reason) {
  if (reason != kProcessAttach) return 1;
  return new (std::nothrow) TZenxCallbacks != nullptr ? 1 : 0;
}
