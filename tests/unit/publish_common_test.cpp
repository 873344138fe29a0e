#include "publish/publish_common.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "plugin/host_interface/exception.h"
#include "tests/support/fake_namespace.h"
#include "tests/support/recording_log.h"

namespace {

TEST(PublishCommon, AControllerListThatCannotBeReadIsLoggedAndCountsAsEmpty) {
  RecordingLog log;
  const ControllerList read =
      ReadControllers(&log, []() -> ControllerList { throw std::runtime_error("out of order"); });
  EXPECT_TRUE(read.empty());
  EXPECT_EQ(log.entries, (std::vector<LogEntry>{
                             {3, "GetControllers() Failed: inside ZxPlugin"}
  }));
}

TEST(PublishCommon, AControllerListThatCanBeReadIsTheListAndNoMessage) {
  RecordingLog log;
  const auto controller = std::make_shared<ZenxController>(&log);
  EXPECT_EQ(ReadControllers(&log, [&] { return ControllerList{controller}; }), ControllerList{controller});
  EXPECT_TRUE(log.entries.empty());
}

TEST(PublishCommon, InstancesComeInTheOrderInWhichTheyWereCommitted) {
  FakeNamespace nameSpace;
  for (const char* const value : {"b", "a", "b"}) nameSpace.Add("Class", {"Name", value});
  nameSpace.Add("Other", {"Name", "c"});
  std::vector<std::string> names;
  for (const auto& instance : InstancesOf(nameSpace, "Class", {})) names.push_back(TextOf(*instance, "Name"));
  EXPECT_EQ(names, (std::vector<std::string>{"b", "a", "b"}));
  EXPECT_TRUE(InstancesOf(nameSpace, "Empty", {}).empty());
}

TEST(PublishCommon, APropertyThatTheHostRefusesPassesItsException) {
  FakeNamespace nameSpace;
  nameSpace.Add("Class", {"Name", "a"});
  EXPECT_THROW(TextOf(*InstancesOf(nameSpace, "Class", {}).front(), "Other"), NKVRHXA20::THXAException);
}

TEST(PublishCommon, AnArrayHoldsTheTextsInOrder) {
  EXPECT_EQ(Rendered(StringArray({"b", "", "a"})), "string[\"b\", \"\", \"a\"]");
  EXPECT_EQ(Rendered(StringArray({})), "string[]");
}

}  // namespace
