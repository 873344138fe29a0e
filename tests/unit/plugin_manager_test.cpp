#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxacore/host_services.h"
#include "host/plugin_manager/plugin_manager_access.h"
#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/services.h"

namespace {

using namespace NKVRHXA20;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

// Records its release, like a plug-in that then deletes itself.
class TNamedPlugin final : public IPluginCallbacks {
 public:
  TNamedPlugin(std::string name, std::vector<std::string>& released) : name_(std::move(name)), released_(released) {}

  int Unnamed1() override { return 0; }
  std::string GetPluginName() override { return name_; }
  std::string GetVersion() override { return "1"; }
  std::string GetSecondVersion() override { return "1"; }
  void Release() override {
    released_.push_back(name_);
    delete this;
  }
  void Unnamed6() override {}
  void Unnamed7() override {}

 private:
  std::string name_;
  std::vector<std::string>& released_;
};

class PluginManager : public testing::Test {
 protected:
  ~PluginManager() override { SetPluginManager(nullptr); }

  std::vector<std::string> released;
  boost::shared_ptr<TPluginManagerNamespace> manager = TPluginManagerAccess::Install();
};

TEST_F(PluginManager, IsFoundThroughTheRootObject) {
  EXPECT_EQ(boost::dynamic_pointer_cast<TPluginManagerNamespace>(TRootObject::GetPluginManager()), manager);
  SetPluginManager(nullptr);
  EXPECT_EQ(TRootObject::GetPluginManager(), nullptr);
}

TEST_F(PluginManager, KeepsPlugInsInTheirOrderReleasesEachOnceAndForgetsIt) {
  auto* const first = new TNamedPlugin("first", released);
  auto* const second = new TNamedPlugin("second", released);
  EXPECT_NE(manager->RegisterPlugin(first), nullptr);
  EXPECT_NE(manager->RegisterPlugin(second), nullptr);
  EXPECT_THAT(TPluginManagerAccess::Plugins(*manager), ElementsAre(first, second));
  TPluginManagerAccess::ReleasePlugins(*manager);
  EXPECT_THAT(released, ElementsAre("first", "second"));
  EXPECT_THAT(TPluginManagerAccess::Plugins(*manager), IsEmpty());
  TPluginManagerAccess::ReleasePlugins(*manager);
  EXPECT_EQ(released.size(), 2U);
}

TEST_F(PluginManager, HasNoClassOfItsOwn) {
  EXPECT_THAT([&] { manager->GetClass("KVRSG_zxDiskDrive", {}); },
              ThrowsMessage<THXAException>(HasSubstr("KVRSG_zxDiskDrive")));
}

}  // namespace
