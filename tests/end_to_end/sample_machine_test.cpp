// The whole sample machine, every class, queried by the real program with real processes: the first query is held
// against tests/golden/sample-machine.json, and the second against the first. To renew that file, run this test
// natively with ZENX_RENEW_GOLDEN=1 in the environment, and read the difference line by line before it is committed.

#include <gtest/gtest.h>

#include "tests/support/hxahost_run.h"
#include "tests/support/same_lines.h"

namespace {

using Json = nlohmann::ordered_json;

TEST(SampleMachine, PublishesWhatItHasAlwaysPublishedOnBothSystems) {
  Json first = RunOfSampleMachine().result;
  first["queries"].erase(1);
  EXPECT_TRUE(IsGolden("sample-machine.json", first.dump(1) + "\n"));
}

TEST(SampleMachine, PublishesTheSameOnTheSecondQueryWithoutRunningAToolOrReadingTheLogAgain) {
  const Json& queries = RunOfSampleMachine().result["queries"];
  ASSERT_EQ(queries.size(), 2U);
  Json withoutEvents = Json::array();
  for (const Json& instance : queries[0]["instances"]) {
    if (instance["class"] != "KVRSG_LogRecord_RAIDMgrEvent") withoutEvents.push_back(instance);
  }
  EXPECT_TRUE(SameText(withoutEvents.dump(1), queries[1]["instances"].dump(1)));
  EXPECT_LT(withoutEvents.size(), queries[0]["instances"].size());
  EXPECT_EQ(queries[1]["log"], Json::parse(R"([
    { "level": 100, "text": "There exist bad stripes in Logical Drive of Zentraxis." },
    { "level": 3, "text": "Unexpected end of file reached." }
  ])"));
}

}  // namespace
