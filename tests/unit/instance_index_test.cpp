#include "publish/instance_index.h"

#include <gtest/gtest.h>

#include "tests/support/publishing.h"

namespace {

// The property "Name" of the instances that are found under a key.
std::vector<std::string> Found(const std::string& key) {
  Publishing host;
  for (const auto& [number, name] :
       {std::pair("1", "b"), std::pair("2", "x"), std::pair("1", "a"), std::pair("", "e")}) {
    host.nameSpace.Add("Class", {"ControllerNum", number, "Name", name});
  }
  ZenxCollectData collector(&host.log);
  CollectRaidMgrData raidManagerLog(&host.log);
  const NKVRHXA20::TPropertyMap lookupContext;
  const PublishContext context{host.nameSpace, lookupContext, collector, raidManagerLog, &host.log};
  const InstanceIndex index(context, "Class", ControllerNumberOf);
  std::vector<std::string> names;
  for (const auto& instance : index.Find(key)) names.push_back(TextOf(*instance, "Name"));
  return names;
}

using Names = std::vector<std::string>;

TEST(InstanceIndex, FindsInstancesByTheirKeyInTheOrderInWhichTheyWereCommitted) {
  EXPECT_EQ(Found("1"), (Names{"b", "a"}));
  EXPECT_EQ(Found("2"), (Names{"x"}));
  EXPECT_EQ(Found(""), (Names{"e"}));
}

TEST(InstanceIndex, FindsNothingUnderAnyOtherKey) {
  EXPECT_EQ(Found("3"), Names{});
  EXPECT_EQ(Found(" 1"), Names{});
}

}  // namespace
