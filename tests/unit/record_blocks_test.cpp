#include "collect/record_blocks.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/recording_log.h"

namespace {

// Counts itself.
struct Record {
  explicit Record(HostHandle host) : Host(host) { ++alive; }
  Record(const Record& other) : Host(other.Host), Text(other.Text) { ++alive; }
  Record& operator=(const Record&) = default;
  ~Record() { --alive; }

  static inline int alive = 0;
  HostHandle Host;
  std::string Text;
};

using Records = std::vector<std::shared_ptr<Record>>;

Records Make(int count) {
  RecordBlocks<Record> blocks(nullptr);
  Records records;
  for (int number = 0; number < count; ++number) {
    records.push_back(blocks.Make());
    records.back()->Text = "number " + std::to_string(number) + ", a text that has memory of its own";
  }
  return records;
}

// How many records follow each other in the same block, for each block.
std::vector<int> LengthsOfBlocks(const Records& records) {
  std::vector<int> lengths;
  for (std::size_t index = 0; index < records.size(); ++index) {
    const bool isFirst = index == 0 || records[index - 1].owner_before(records[index]) ||
                         records[index].owner_before(records[index - 1]);
    if (isFirst) lengths.push_back(0);
    ++lengths.back();
  }
  return lengths;
}

TEST(RecordBlocks, MakeEmptyRecordsOfTheHost) {
  RecordingLog log;
  RecordBlocks<Record> blocks(&log);
  for (int number = 0; number < 100; ++number) {
    const auto record = blocks.Make();
    ASSERT_EQ(record->Host, &log) << number;
    ASSERT_EQ(record->Text, "") << number;
  }
}

TEST(RecordBlocks, MakeEachRecordOnceAndMoveNone) {
  RecordBlocks<Record> blocks(nullptr);
  Records records;
  std::vector<const Record*> places;
  for (int number = 0; number < 200; ++number) {
    records.push_back(blocks.Make());
    places.push_back(records.back().get());
    ASSERT_EQ(Record::alive, number + 1);
  }
  EXPECT_EQ(std::set(places.begin(), places.end()).size(), places.size());
  for (std::size_t index = 0; index < places.size(); ++index) ASSERT_EQ(records[index].get(), places[index]) << index;
}

TEST(RecordBlocks, LeaveTheirRecordsAsTheyAreWhenTheyAreGone) {
  const Records records = Make(100);
  for (std::size_t index = 0; index < records.size(); ++index) {
    ASSERT_EQ(records[index]->Text, "number " + std::to_string(index) + ", a text that has memory of its own");
  }
}

TEST(RecordBlocks, LiveAsLongAsTheLastRecordOfEach) {
  Records records = Make(100);
  EXPECT_EQ(Record::alive, 100);
  const std::shared_ptr<Record> kept = std::move(records[50]);
  records.clear();
  EXPECT_EQ(kept->Text, "number 50, a text that has memory of its own");
  EXPECT_LE(Record::alive, 32);
}

TEST(RecordBlocks, FreeTheRecordsOfAListThatIsDropped) {
  Make(100);
  EXPECT_EQ(Record::alive, 0);
}

TEST(RecordBlocks, BeginWithOneRecordAndDoubleUpToALimit) {
  EXPECT_EQ(LengthsOfBlocks(Make(0)), std::vector<int>{});
  EXPECT_EQ(LengthsOfBlocks(Make(1)), std::vector<int>{1});
  EXPECT_EQ(LengthsOfBlocks(Make(2)), (std::vector<int>{1, 1}));
  EXPECT_EQ(LengthsOfBlocks(Make(130)), (std::vector<int>{1, 2, 4, 8, 16, 32, 32, 32, 3}));
}

}  // namespace
