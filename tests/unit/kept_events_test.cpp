#include "host/hxahost/machine/kept_events.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/hxahost/result/property_values.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using NKVRHXA20::TCIMDateTime;
using testing::ElementsAre;

constexpr const char* kEvent = "KVRSG_LogRecord_RAIDMgrEvent";

void PublishEvent(FilledRepository& repository, const std::string& record, const std::string& severity,
                  const std::string& message, std::uint16_t year) {
  repository.Publish(kEvent, "MessageTimestamp", TCIMDateTime(year, 3, 5, 12, 0, 0, 0, 0), "RecordID", record,
                     "Severity", severity, "Message", message);
}

// The instances of the repository that a query in 2026 keeps.
QueryResult Kept(const FilledRepository& repository, std::size_t newest) {
  QueryHeader header;
  header.time = TCIMDateTime(2026, 3, 6, 12, 0, 0, 0, 0);
  KeptEvents events(newest);
  QueryResult result;
  for (const auto& instance : repository.Instances()) {
    if (!events.Take(header, instance)) result.instances.push_back(instance);
  }
  events.PutInto(result);
  return result;
}

std::vector<std::string> Names(const QueryResult& result) {
  std::vector<std::string> names;
  for (const auto& instance : result.instances) {
    names.push_back(RawText(*instance, "RecordID") + RawText(*instance, "CollectionID"));
  }
  return names;
}

TEST(KeptEvents, ContainTheNewestInTheirPlaceAndTheTotal) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "before");
  for (int record = 1; record <= 6; ++record) PublishEvent(repository, std::to_string(record), "INF", "m", 2026);
  repository.Publish("KVRSG_zxDiskGroup", "CollectionID", "after");
  const QueryResult result = Kept(repository, 2);
  EXPECT_THAT(Names(result), ElementsAre("before", "5", "6", "after"));
  EXPECT_EQ(result.events, 6U);
  EXPECT_EQ(EventNote(result),
            "The newest 2 of 6 events: \"hxahost query --class events --format jsonl\" writes all of them.");
}

TEST(KeptEvents, AreAllEventsOfAShortLog) {
  FilledRepository repository;
  for (int record = 1; record <= 3; ++record) PublishEvent(repository, std::to_string(record), "INF", "m", 2026);
  const QueryResult result = Kept(repository, 3);
  EXPECT_THAT(Names(result), ElementsAre("1", "2", "3"));
  EXPECT_EQ(result.events, 0U);
  EXPECT_EQ(EventNote(result), "");
}

TEST(KeptEvents, ContainThoseThatTheRulesRead) {
  FilledRepository repository;
  PublishEvent(repository, "1", "WRN", "the battery is low", 2026);
  PublishEvent(repository, "2", "INF", "the battery is fine", 2026);
  PublishEvent(repository, "3", "WRN", "the battery was low", 2007);
  PublishEvent(repository, "4", "WRN", "the battery is low", 2026);
  PublishEvent(repository, "5", "INF", "m", 2026);
  EXPECT_THAT(Names(Kept(repository, 0)), ElementsAre("1", "4"));
  EXPECT_THAT(Names(Kept(repository, 1)), ElementsAre("1", "4", "5"));
}

}  // namespace
