#include "host/hxahost/collection/plugin.h"

#include <exception>
#include <string>

#include <fmt/core.h>

#include "host/hxacore/host_services.h"
#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/plugin_library.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"
#include "host/plugin_manager/plugin_manager_access.h"
#include "platform/raid_log_limit.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

[[noreturn]] void Refuse(const std::filesystem::path& file, const std::string& reason) {
  throw ProgramError(
      ExitStatus::kPluginNotLoaded,
      fmt::format("The plug-in {} {}: give the path of zenx.pi with --plugin.", Printable(Utf8FromPath(file)), reason));
}

}  // namespace

// Loading is enough: the plug-in registers itself with the manager.
Plugin::Plugin(const std::filesystem::path& file) : manager_(TPluginManagerAccess::Install()) {
  std::error_code unknown;
  if (!std::filesystem::exists(file, unknown)) Refuse(file, "is missing");
  if (!std::filesystem::is_regular_file(file, unknown)) Refuse(file, "is no ordinary file");
  try {
    LoadPluginLibrary(file);
  } catch (const std::exception& failure) {
    Refuse(file, "cannot be loaded (" + Printable(failure.what()) + ")");
  }
  for (IPluginCallbacks* const plugin : TPluginManagerAccess::Plugins(*manager_)) {
    if (query_ == nullptr) query_ = dynamic_cast<IPluginBasicQueryCallbacks*>(plugin);
  }
  if (query_ == nullptr) Refuse(file, "registered nothing that can be queried (a process loads a plug-in once)");
}

Plugin::~Plugin() {
  TPluginManagerAccess::ReleasePlugins(*manager_);
  SetPluginManager(nullptr);
}

void Plugin::AnswerAs(const RecordedSystem& recorded) {
  auto* const replays = dynamic_cast<IReplaysSystem*>(query_);
  if (replays == nullptr) {
    throw ProgramError(ExitStatus::kPluginNotLoaded,
                       "The plug-in cannot replay a bundle: give the path of zenx.pi with --plugin.");
  }
  replays->AnswerAs(recorded);
}

void Plugin::SetLargestRaidLog(std::uint64_t bytes) {
  if (auto* const limits = dynamic_cast<ILimitsRaidLog*>(query_)) limits->SetLargestRaidLog(bytes);
}

void Plugin::Query(const boost::shared_ptr<ICIMNamespace>& nameSpace,
                   const std::vector<boost::shared_ptr<ICIMClass>>& classes) {
  const std::lock_guard lock(oneAtATime_);
  query_->Query(nameSpace, classes);
}

}  // namespace hxahost
