#include "host/hxahost/result/json_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <vector>

#include "host/hxahost/system/exit_status.h"

namespace {

using namespace hxahost;

std::string Line(const std::string& machine, const std::string& time, const std::string& path) {
  return R"({"machine":")" + machine + R"(","time":")" + time + R"(","class":"C","path":")" + path +
         R"(","properties":{}})" + "\n";
}

std::vector<CollectionLines> Collections(const std::string& text, std::uint64_t largest = kLargestInput) {
  std::istringstream in(text);
  CollectionReader reader(in, largest);
  std::vector<CollectionLines> collections;
  while (auto lines = reader.Next()) collections.push_back(std::move(*lines));
  return collections;
}

TEST(JsonLinesReader, TakesLinesOfOneMachineAndTimeTogether) {
  const std::string text = Line("A", "1", "a") + Line("A", "1", "b") + "\n" + Line("A", "2", "a") +
                           Line("B", "2", "a") + Line("A", "2", "b");
  const auto collections = Collections(text);
  ASSERT_EQ(collections.size(), 4U);
  EXPECT_EQ(collections[0].text, Line("A", "1", "a") + Line("A", "1", "b"));
  EXPECT_EQ(collections[1].first, 4U) << "an empty line counts";
  EXPECT_EQ(collections[3].text, Line("A", "2", "b"));
  EXPECT_TRUE(Collections("").empty());
  EXPECT_TRUE(Collections("\n \n").empty());
}

TEST(JsonLinesReader, TakesLinesTogetherWhoseKeysAreInAnotherOrder) {
  const std::string other = R"({"class":"C","path":"x","properties":{},"time":"1","machine":"A"})"
                            "\n";
  EXPECT_EQ(Collections(Line("A", "1", "a") + other + Line("A", "1", "b")).size(), 1U);
  EXPECT_EQ(Collections(other + Line("A", "1", "b")).size(), 1U);
  EXPECT_EQ(Collections(Line("B", "1", "a") + other).size(), 2U);
}

TEST(JsonLinesReader, LeavesALineThatIsCutOffWithThoseBeforeIt) {
  const auto collections = Collections(Line("A", "1", "a") + Line("A", "1", "b").substr(0, 30));
  ASSERT_EQ(collections.size(), 1U);
  try {
    ParseJsonLines(collections[0], "f.jsonl");
    FAIL() << "it was read";
  } catch (const ProgramError& error) {
    EXPECT_STREQ(error.what(),
                 "f.jsonl line 2 is no line of \"hxahost query --format jsonl\": it is damaged, or no JSON at all.");
  }
}

// Such as a file that was concatenated with itself.
TEST(JsonLinesReader, BeginsAnewWhereTheFirstObjectIsRepeated) {
  const std::string once = Line("A", "1", "a") + Line("A", "1", "b");
  const auto collections = Collections(once + once);
  ASSERT_EQ(collections.size(), 2U);
  EXPECT_EQ(collections[0].text, once);
  EXPECT_EQ(collections[1].text, once);
  EXPECT_EQ(collections[1].first, 3U);
  const std::string log = R"({"machine":"A","time":"1","class":"log","properties":{"level":3,"text":"t"}})"
                          "\n";
  EXPECT_EQ(Collections(log + log).size(), 1U) << "the log may repeat itself";
  EXPECT_EQ(Collections(once + Line("A", "1", "b")).size(), 1U) << "only the first object counts";
}

TEST(JsonLinesReader, RefusesALineWithANul) {
  const std::string line = Line("A", "1", "a");
  EXPECT_THROW(ParseJsonLines({line.substr(0, line.size() - 1) + std::string("\0x\n", 3), 1}, "f"), ProgramError);
}

TEST(JsonLinesReader, ReadsAResultUpToALimitAndContinuesWithTheNextOne) {
  const std::string line = Line("A", "1", "a");
  const std::string longLine = Line("B", "1", std::string(1000, 'x'));
  const std::string three = line + Line("A", "1", "b") + Line("A", "1", "c");
  for (const std::string& large : {three, longLine, line + longLine.substr(0, 900)}) {
    const auto collections = Collections(large + "\n" + Line("C", "1", "c") + Line("C", "1", "d"), 2 * line.size());
    ASSERT_GE(collections.size(), 1U);
    const auto tooLarge = std::ranges::find(collections, true, &CollectionLines::isTooLarge);
    ASSERT_NE(tooLarge, collections.end()) << large;
    EXPECT_EQ(tooLarge->text, "");
    EXPECT_THROW(ParseJsonLines(*tooLarge, "f.jsonl"), ProgramError);
  }
  EXPECT_EQ(Collections(three + Line("C", "1", "c"), 2 * line.size()).back().text, Line("C", "1", "c"));
  EXPECT_FALSE(Collections(line + Line("A", "1", "b"), 2 * line.size()).front().isTooLarge);
}

TEST(JsonLinesReader, ReadsTheInstancesTheRunsAndTheLog) {
  const std::string begin = R"({"machine":"A","time":"1","replayed":true,"class":)";
  const JsonResult result =
      ParseJsonLines({Line("A", "1", "p") + begin +
                          R"("tool run","properties":{"command":"zenx//arcconf.exe","arguments":["getconfig"],)" +
                          R"("outcome":"timed out","failure":"why"}})" + "\n" + begin +
                          R"("log","properties":{"level":3,"text":"t"}})" + "\n",
                      1},
                     "f");
  EXPECT_EQ(result.machine, "A");
  EXPECT_EQ(result.time, "1");
  EXPECT_TRUE(result.isReplayed);
  ASSERT_EQ(result.instances.size(), 1U);
  EXPECT_EQ(result.instances[0].path, "p");
  ASSERT_TRUE(result.runs && result.runs->size() == 1);
  EXPECT_EQ(result.runs->front().outcome, Outcome::kTimedOut);
  ASSERT_EQ(result.log.size(), 1U);
  EXPECT_EQ(result.log[0].text, "t");
}

// Functions that process a value call themselves for each level, and the stack is finite.
TEST(JsonLinesReader, RecognisesNoLineThatIsNestedTooDeep) {
  constexpr std::size_t kDeep = 200'000;
  const std::string nested = std::string(kDeep, '[') + std::string(kDeep, ']');
  const std::string line = R"({"machine":)" + nested + R"(,"time":"1","class":"a"})";
  EXPECT_FALSE(IsInstanceLine(line));
  EXPECT_EQ(Collections(line + "\n" + line + "\n").size(), 1U);
}

TEST(JsonLinesReader, RecognisesItsLines) {
  EXPECT_TRUE(IsInstanceLine(Line("A", "1", "p")));
  EXPECT_FALSE(IsInstanceLine("{"));
  EXPECT_FALSE(IsInstanceLine(""));
  EXPECT_FALSE(IsInstanceLine(R"({"format":1,"machine":"A","time":"1","queries":[]})")) << "a result on one line";
}

}  // namespace
