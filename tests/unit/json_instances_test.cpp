#include "host/hxahost/result/json_instances.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace hxahost;
using namespace NKVRHXA20;
using Json = nlohmann::ordered_json;

constexpr std::string_view kDisks[] = {"KVRSG_zxDiskDrive"};

JsonResult Result(const std::string& className, const Json& properties) {
  return {
      "M", {{"KVRSG_zxLogicalDisk", "other", Json::object()}, {className, "p", properties}}
  };
}

std::vector<std::string> Names(const JsonInstances& made) {
  std::vector<std::string> names;
  for (const auto& instance : made.instances) {
    for (const PublishedProperty& property : instance->Properties()) names.emplace_back(property.name);
  }
  return names;
}

TEST(JsonInstances, AreThoseOfTheClassesAskedForWithTheirPlaces) {
  const JsonInstances made = MakeInstances(Result("KVRSG_zxDiskDrive",
                                                  {
                                                      {"State", "Online"}
  }),
                                           kDisks);
  ASSERT_EQ(made.instances.size(), 1U);
  EXPECT_EQ(made.places, std::vector<std::size_t>{1});
  EXPECT_EQ(std::string(made.instances[0]->Properties()[0].value), "Online");
}

TEST(JsonInstances, LeaveOutPropertiesThatTheSchemaLacksOrDeclaresDifferently) {
  struct Case {
    const char* name;
    Json properties;
  };
  const Case cases[] = {
      {"a property of another version", {{"Shade", "blue"}}                              },
      {"a number for a text",           {{"State", 7}}                                   },
      {"nothing",                       {{"State", nullptr}}                             },
      {"a list for a text",             {{"State", Json::array({"a"})}}                  },
      {"a text for a list",             {{"OtherIdentifyingInfo", "a"}}                  },
      {"a list of numbers",             {{"OtherIdentifyingInfo", Json::array({"a", 1})}}},
      {"an object",                     {{"OtherIdentifyingInfo", {{"State", "Online"}}}}},
  };
  for (const Case& each : cases) {
    EXPECT_TRUE(Names(MakeInstances(Result("KVRSG_zxDiskDrive", each.properties), kDisks)).empty()) << each.name;
  }
  EXPECT_TRUE(MakeInstances(Result("KVRSG_New", Json::object()), kDisks).instances.empty());
}

TEST(JsonInstances, LeaveOutTimesAndNumbersThatAreNone) {
  constexpr std::string_view kLogs[] = {"KVRSG_LogRecord_zxDDD", "KVRSG_LogRecord_SoftEvent"};
  struct Case {
    const char* name;
    const char* className;
    Json properties;
    std::size_t count;
  };
  const Case cases[] = {
      {"a time",                "KVRSG_LogRecord_zxDDD",     {{"MessageTimestamp", "20260305123015.250000+060"}}, 1},
      {"no time",               "KVRSG_LogRecord_zxDDD",     {{"MessageTimestamp", "yesterday"}},                 0},
      {"numbers",               "KVRSG_LogRecord_SoftEvent", {{"HexSoftEvent", Json::array({1U, 4294967295U})}},  1},
      {"a negative number",     "KVRSG_LogRecord_SoftEvent", {{"HexSoftEvent", Json::array({-1})}},               0},
      {"a number that is wide", "KVRSG_LogRecord_SoftEvent", {{"HexSoftEvent", Json::array({4294967296U})}},      0},
      {"a broken number",       "KVRSG_LogRecord_SoftEvent", {{"HexSoftEvent", Json::array({1.5})}},              0},
  };
  for (const Case& each : cases) {
    EXPECT_EQ(Names(MakeInstances(Result(each.className, each.properties), kLogs)).size(), each.count) << each.name;
  }
}

}  // namespace
