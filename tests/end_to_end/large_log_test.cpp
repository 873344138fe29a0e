// A RAID manager's log with more events than the tables and the report show.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/hxahost_run.h"
#include "tests/support/large_log.h"
#include "tests/support/temporary_folder.h"

namespace {

using nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kEvent = "KVRSG_LogRecord_RAIDMgrEvent";
constexpr const char* kNote = "The newest 5000 of 6000 events";

// The output of a query of the sample machine with so many events in its log.
std::string Shown(const std::string& format, int events) {
  const TemporaryFolder folder;
  const std::string bundle = WriteLargeLogBundle(folder, events);
  const ProgramResult result = RunHxahost(
      {"query", "--format", format, "--replay", bundle, "--width", "200", "--local-time", "20261121093000.000000+060"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  return result.out;
}

// The messages of the events, and the classes of all instances, in their order.
struct Published {
  std::vector<std::string> messages;
  std::vector<std::string> classes;
};

Published ReadInstances(const ordered_json& instances) {
  Published published;
  for (const auto& instance : instances) {
    published.classes.push_back(instance["class"]);
    if (instance["class"] == kEvent) published.messages.push_back(instance["properties"]["Message"]);
  }
  return published;
}

Published ReadReport(const std::string& page) {
  const std::string begin = "id=\"query-data\">";
  const std::size_t first = page.find(begin) + begin.size();
  return ReadInstances(
      ordered_json::parse(page.substr(first, page.find("</script>", first) - first))["queries"][0]["instances"]);
}

TEST(LargeLog, AReportShowsTheNewestEventsAndTheTotal) {
  const std::string page = Shown("html", 6000);
  const Published shown = ReadReport(page);
  ASSERT_EQ(shown.messages.size(), 5000U);
  EXPECT_THAT(shown.messages.front(), HasSubstr("Event 1000 of"));
  EXPECT_THAT(shown.messages.back(), HasSubstr("Event 5999 of"));
  EXPECT_THAT(page, HasSubstr(kNote));
  EXPECT_THAT(page, Not(HasSubstr("Event 999 of"))) << "nor among the raw texts";
  EXPECT_EQ(std::ranges::count(shown.classes, "KVRSG_zxManagerRawData"), 0);
}

TEST(LargeLog, AReportShowsAllEventsOfAShortLog) {
  const std::string page = Shown("html", 5000);
  const Published shown = ReadReport(page);
  EXPECT_EQ(shown.messages.size(), 5000U);
  EXPECT_THAT(page, Not(HasSubstr("The newest")));
  EXPECT_EQ(std::ranges::count(shown.classes, "KVRSG_zxManagerRawData"), 1);
}

TEST(LargeLog, TablesShowTheNewestEventsAndTheTotal) {
  const std::string tables = Shown("table", 6000);
  EXPECT_THAT(tables, HasSubstr(kNote));
  EXPECT_THAT(tables, HasSubstr("Event 1000 of"));
  EXPECT_THAT(tables, Not(HasSubstr("Event 999 of")));
}

TEST(LargeLog, FormatsForProgramsContainAllEventsInTheirPlace) {
  const auto result = ordered_json::parse(Shown("json", 6000));
  const Published json = ReadInstances(result["queries"][0]["instances"]);
  ASSERT_EQ(json.messages.size(), 6000U);
  EXPECT_THAT(json.messages.front(), HasSubstr("Event 0 of"));
  EXPECT_EQ(json.classes.front(), "KVRSG_zxManagerRawData");
  EXPECT_NE(json.classes.back(), kEvent);
  const std::string lines = Shown("jsonl", 6000);
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(lines, '\n')), json.classes.size());
  const std::string csv = Shown("csv", 6000);
  const std::string xml = Shown("cim-xml", 6000);
  for (const std::string& text : {lines, csv, xml}) {
    EXPECT_THAT(text, HasSubstr("Event 0 of"));
    EXPECT_THAT(text, HasSubstr("Event 5999 of"));
  }
}

}  // namespace
