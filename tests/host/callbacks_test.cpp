#include "plugin/callbacks.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include "host/hxacore/host_services.h"
#include "host/hxacore/repository.h"
#include "host/plugin_manager/plugin_manager_access.h"
#include "plugin/host_interface/assertion_failed.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/raid_log_setting.h"
#include "tests/support/scripted_services.h"

namespace {

using namespace NKVRHXA20;

// A plug-in manager that exists as long as the test, with the plug-ins that register in that time.
class Manager {
 public:
  Manager() : manager_(TPluginManagerAccess::Install()) {}
  ~Manager() {
    TPluginManagerAccess::ReleasePlugins(*manager_);
    SetPluginManager(nullptr);
  }
  Manager(const Manager&) = delete;
  Manager& operator=(const Manager&) = delete;

  const std::vector<IPluginCallbacks*>& Plugins() const { return TPluginManagerAccess::Plugins(*manager_); }

 private:
  boost::shared_ptr<TPluginManagerNamespace> manager_;
};

TEST(Callbacks, ProcessAttachRegistersOnePlugInWithItsName) {
  const Manager manager;
  EXPECT_EQ(OnLibraryNotification(1), 1);
  ASSERT_EQ(manager.Plugins().size(), 1U);
  IPluginCallbacks& plugin = *manager.Plugins().front();
  EXPECT_EQ(plugin.Unnamed1(), 0);
  EXPECT_EQ(plugin.GetPluginName(), "Zenx collector");
  EXPECT_EQ(plugin.GetVersion(), "1.0");
  EXPECT_EQ(plugin.GetSecondVersion(), "1.0");
  plugin.Unnamed6();
  plugin.Unnamed7();
  EXPECT_EQ(plugin.GetPluginName(), "Zenx collector");
  EXPECT_NE(dynamic_cast<IPluginBasicQueryCallbacks*>(&plugin), nullptr);
}

TEST(Callbacks, AnyOtherNotificationReturns1AndCreatesNothing) {
  const Manager manager;
  for (const unsigned reason : {0U, 2U, 3U, 4U, 0xffffffffU}) {
    EXPECT_EQ(OnLibraryNotification(reason), 1) << reason;
    EXPECT_TRUE(manager.Plugins().empty()) << reason;
  }
}

TEST(Callbacks, RegisteringRunsNothing) {
  const ScriptedServices services;
  const Manager manager;
  OnLibraryNotification(1);
  EXPECT_TRUE(services.runs.empty());
  EXPECT_TRUE(services.log.empty());
}

// The message of the broken invariant with which attaching fails.
std::string BrokenInvariant() {
  try {
    OnLibraryNotification(1);
  } catch (const TBrokenInvariant& broken) {
    return broken.what();
  }
  return "none";
}

TEST(Callbacks, AHostWithoutAPlugInManagerIsABrokenInvariant) {
  SetPluginManager(nullptr);
  EXPECT_NE(BrokenInvariant().find("px != 0"), std::string::npos) << BrokenInvariant();
}

TEST(Callbacks, APlugInManagerOfAnotherKindIsABrokenInvariant) {
  SetPluginManager(boost::make_shared<FakeNamespace>());
  EXPECT_NE(BrokenInvariant().find("px != 0"), std::string::npos) << BrokenInvariant();
  SetPluginManager(nullptr);
}

TEST(Callbacks, TwoPlugInObjectsOfAProcessCollectOnceBetweenThem) {
  const ScriptedServices services;
  const RaidLogSetting none(std::nullopt);
  const auto repository = TRepository::Make(std::nullopt);
  for (int object = 0; object < 2; ++object) {
    const Manager manager;
    OnLibraryNotification(1);
    auto* const query = dynamic_cast<IPluginBasicQueryCallbacks*>(manager.Plugins().front());
    ASSERT_NE(query, nullptr);
    query->Query(repository, {repository->GetClass("KVRSG_zxManagerRawData", {})});
  }
  const auto isLogged = [](const LogEntry& entry) {
    return entry == LogEntry{3, "RaidMgrLog does not exist: inside ZxPlugin"};
  };
  const auto isLookedFor = [](const LogEntry& entry) { return entry.text.starts_with("Enter CollectRaidMgrData"); };
  EXPECT_EQ(std::ranges::count_if(services.log, isLogged), 2);
  EXPECT_EQ(std::ranges::count_if(services.log, isLookedFor), 1);
}

}  // namespace
