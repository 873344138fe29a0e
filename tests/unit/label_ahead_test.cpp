#include "collect/label_ahead.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "collect/text_search.h"

namespace {

// What it says of each line from the current one on: "x" where the label is.
std::string LinesWith(std::string_view label, const std::string& lines, int first = 0) {
  CollectedData text(nullptr, lines);
  for (int line = 0; line < first; ++line) text.NextLine();
  LabelAhead ahead(text, label);
  std::string found;
  for (; text.CurrentLine() != "end\n"; text.NextLine()) {
    found += ahead.IsOn(text.CurrentLine()) ? 'x' : '.';
    EXPECT_EQ(ahead.IsOn(text.CurrentLine()), Contains(text.CurrentLine(), label)) << text.CurrentLine();
  }
  return found;
}

TEST(LabelAhead, TellsTheLinesThatContainTheLabel) {
  EXPECT_EQ(LinesWith("ab", "1\nab\n3\n\n ab ab\nab\nb\nend\n"), ".x..xx.");
}

TEST(LabelAhead, FindsItAtBothEndsOfALine) { EXPECT_EQ(LinesWith("ab", "ab \n ab\na\nb\nend\n"), "xx.."); }

TEST(LabelAhead, FindsNoneThatIsNotThere) { EXPECT_EQ(LinesWith("ab", "a\nb\n\nend\n"), "..."); }

TEST(LabelAhead, FindsItInEachLine) { EXPECT_EQ(LinesWith("-", "-\n---\n-\nend\n"), "xxx"); }

TEST(LabelAhead, LooksFromTheCurrentLineOn) { EXPECT_EQ(LinesWith("ab", "ab\n2\nab\nend\n", 1), ".x"); }

TEST(LabelAhead, DoesNotFindItAcrossLinesOrBehindTheLastOne) { EXPECT_EQ(LinesWith("ab", "a\nb\nend\nab"), ".."); }

TEST(LabelAhead, FailsWhereThereIsNoLine) {
  const CollectedData text(nullptr, "");
  EXPECT_THROW(LabelAhead(text, "ab"), std::out_of_range);
}

}  // namespace
