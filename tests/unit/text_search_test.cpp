#include "collect/text_search.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

// Of few letters, so that beginnings of a label are met at every turn; some of them rare, some common.
std::string RandomText(std::mt19937& random, std::size_t longest) {
  constexpr std::string_view kLetters("e C\xff\n\0", 6);
  std::string letters(random() % (longest + 1), ' ');
  for (char& letter : letters) letter = kLetters[random() % kLetters.size()];
  return letters;
}

TEST(FindInReport, FindsWhatASearchFromTheFirstCharacterFinds) {
  std::mt19937 random(7);
  int hits = 0;
  for (int round = 0; round < 20'000; ++round) {
    const std::string report = RandomText(random, 40);
    const std::string label = RandomText(random, 4);
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

TEST(FindInLine, FindsWhatAnySearchFinds) {
  std::mt19937 random(8);
  int hits = 0;
  for (int round = 0; round < 20'000; ++round) {
    const std::string line = RandomText(random, 40);
    const std::string label = RandomText(random, 4);
    const std::size_t expected = line.find(label);
    ASSERT_EQ(FindInLine(line, label), expected) << line << "|" << label;
    ASSERT_EQ(Contains(line, label), expected != line.npos) << line << "|" << label;
    hits += expected != line.npos ? 1 : 0;
  }
  EXPECT_GT(hits, 2'000);
}

TEST(FindInLine, SeesALabelThatFillsOrEndsTheLineAndNoneThatIsCutOff) {
  struct Case {
    std::string name;
    std::string line;
    std::string label;
    std::size_t expected;
  };
  constexpr std::size_t kNone = std::string::npos;
  const std::vector<Case> cases = {
      {"the line is the label",             "Size",        "Size", 0    },
      {"the label ends the line",           "  Size",      "Size", 2    },
      {"the line ends in a part of it",     "  Siz",       "Size", kNone},
      {"the line is shorter",               "Siz",         "Size", kNone},
      {"its first character stands before", "S : Size",    "Size", 4    },
      {"a part of it stands before",        "SiSize",      "Size", 2    },
      {"it stands twice",                   " Size Size",  "Size", 1    },
      {"its first character alone",         "S  \xff\r\n", "Size", kNone},
      {"no label",                          "Size",        "",     0    },
      {"no line",                           "",            "Size", kNone},
      {"neither",                           "",            "",     0    },
  };
  for (const Case& searchCase : cases) {
    EXPECT_EQ(FindInLine(searchCase.line, searchCase.label), searchCase.expected) << searchCase.name;
  }
}

TEST(AreSame, SeesOneDifferentCharacterWhereverItStandsAndWhateverTheLength) {
  for (std::size_t length = 0; length <= 40; ++length) {
    const std::string text = std::string(length, 'a') + "behind";
    std::string other = std::string(length, 'a') + "BEHIND";
    EXPECT_TRUE(AreSame(text.data(), other.data(), length)) << length;
    for (std::size_t at = 0; at < length; ++at) {
      other[at] = '\xe1';
      EXPECT_FALSE(AreSame(text.data(), other.data(), length)) << length << " at " << at;
      other[at] = 'a';
    }
  }
}

}  // namespace
