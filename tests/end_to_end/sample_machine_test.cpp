// The whole sample machine, every class, queried by the real program with real processes: the first query is compared
// with tests/golden/sample-machine.json, and the second with the first. To renew that file, run this test natively with
// ZENX_RENEW_GOLDEN=1 in the environment, and read the difference line by line before the commit.

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/same_lines.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;
using testing::HasSubstr;
using Json = nlohmann::ordered_json;

TEST(SampleMachine, PublishesTheGoldenInstancesOnBothSystems) {
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

// A gap in the numbers of the legacy utility: the next utility gives its controller a number that is in use.
TEST(SampleMachineWithAGap, KeepsApartTheControllersThatShareANumber) {
  const fs::path machine = SampleMachine().parent_path() / "sample-machine-with-gap";
  const ProgramResult status = RunHxahost({"status", "--directory", Utf8FromPath(machine), "--width", "80"});
  EXPECT_EQ(status.exitStatus, 0) << status.err;
  EXPECT_THAT(status.out, HasSubstr("C3 (qcmdrun) logical drive 2 (RAID 0) is offline"));
  for (const char* const label : {"  C1 ", "  C3 (qcmdrun) ", "  C3 (hrconf_64) ", "  C4 ", "  C5 "}) {
    EXPECT_THAT(status.out, HasSubstr(label));
  }
}

TEST(Status, FitsOneScreenWithAnActionForEveryCause) {
  const ProgramResult status = RunHxahost({"--replay", RecordedSampleMachine(), "--width", "80"});
  EXPECT_TRUE(IsGolden("sample-machine-status.txt", status.out));
  EXPECT_LE(std::ranges::count(status.out, '\n'), 24);
}

}  // namespace
