#include "collect/text_search.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace text_search_test {
namespace {

// Texts and labels of few letters, so that beginnings of a label are met at every turn; some of them rare, some common.
TEST(FindInReport, FindsWhatASearchFromTheFirstCharacterFinds) {
  std::mt19937 random(7);
  const auto text = [&random](std::size_t longest) {
    constexpr std::string_view kLetters = "e C\xff\n";
    std::string letters(random() % (longest + 1), ' ');
    for (char& letter : letters) letter = kLetters[random() % kLetters.size()];
    return letters;
  };
  int hits = 0;
  for (int round = 0; round < 20'000; ++round) {
    const std::string report = text(40);
    const std::string label = text(4);
    const std::size_t from = random() % (report.size() + 3);
    const std::size_t expected = report.find(label, from);
    ASSERT_EQ(FindInReport(report, label, from), expected) << report << "|" << label << "|" << from;
    hits += expected != report.npos ? 1 : 0;
  }
  EXPECT_GT(hits, 2'000);
}

TEST(FindInReport, SeesALabelThatEndsTheReportAndNoneThatIsCutOff) {
  EXPECT_TRUE(ReportContains("x Controllers found: 0", "Controllers found: 0"));
  EXPECT_FALSE(ReportContains("x Controllers found: ", "Controllers found: 0"));
  EXPECT_FALSE(ReportContains("ontrollers found: 0", "Controllers found: 0"));
  EXPECT_FALSE(ReportContains("", "Controllers found: 0"));
}

}  // namespace
}  // namespace text_search_test
