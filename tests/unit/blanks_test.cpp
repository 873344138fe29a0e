#include "collect/blanks.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

// How many characters of the text are passed over.
std::size_t Skipped(const std::string& text) {
  return static_cast<std::size_t>(SkipBlanks(text.data(), text.data() + text.size()) - text.data());
}

TEST(Blanks, AreBlankTabAndLineFeedAndNoCarriageReturn) {
  for (int code = 0; code < 256; ++code) {
    const char character = static_cast<char>(code);
    EXPECT_EQ(IsBlank(character), code == ' ' || code == '\t' || code == '\n') << code;
  }
}

TEST(Blanks, AreSkippedToTheFirstOtherCharacterHoweverManyThereAre) {
  for (std::size_t count = 0; count < 20; ++count) {
    const std::string blanks(count, ' ');
    EXPECT_EQ(Skipped(blanks), count);
    EXPECT_EQ(Skipped(blanks + "|    "), count);
    EXPECT_EQ(Skipped(blanks + "\r\n"), count);
    EXPECT_EQ(Skipped(blanks + std::string(1, '\0')), count);
    EXPECT_EQ(Skipped(blanks + "\xa0"), count);
  }
}

// Where a tab or a line feed stands among blanks, those behind it are skipped one by one.
TEST(Blanks, AreSkippedWhateverTheirOrder) {
  for (std::size_t count = 1; count < 12; ++count) {
    for (std::size_t at = 0; at < count; ++at) {
      for (const char blank : {'\t', '\n'}) {
        std::string blanks(count, ' ');
        blanks[at] = blank;
        EXPECT_EQ(Skipped(blanks + "x  "), count) << count << " at " << at;
      }
    }
  }
}

TEST(Blanks, BehindTheEndAreNotLookedAt) {
  const std::string blanks(16, ' ');
  for (std::size_t size = 0; size <= blanks.size(); ++size) {
    EXPECT_EQ(SkipBlanks(blanks.data(), blanks.data() + size), blanks.data() + size);
  }
}

// A buffer without anything behind it, so that a look behind its end is noticed.
TEST(Blanks, AreSkippedAsOneByOneInEveryText) {
  constexpr std::string_view kCharacters = "            \t\n\r|0\xa0\x80\x21\x1f";
  std::mt19937 random(3);
  for (int round = 0; round < 20'000; ++round) {
    std::vector<char> text(random() % 40);
    const std::size_t blanks = random() % 40;
    for (std::size_t at = 0; at < text.size(); ++at) {
      text[at] = at < blanks ? ' ' : kCharacters[random() % kCharacters.size()];
    }
    const char* const end = text.data() + text.size();
    const char* expected = text.data();
    while (expected != end && (*expected == ' ' || *expected == '\t' || *expected == '\n')) ++expected;
    ASSERT_EQ(SkipBlanks(text.data(), end), expected) << std::string(text.begin(), text.end());
  }
}

TEST(Blanks, BeforeAnotherCharacterAreCountedUpToEight) {
  for (std::size_t count = 0; count < 8; ++count) {
    for (int code = 0; code < 256; ++code) {
      std::string eight(8, ' ');
      eight[count] = static_cast<char>(code);
      const int blanks = code == ' ' ? 8 : static_cast<int>(count);
      EXPECT_EQ(BlanksBeforeOther(eight.data()), blanks) << count << " before " << code;
      eight[7] = count == 7 ? eight[7] : 'x';
      EXPECT_EQ(BlanksBeforeOther(eight.data()), count < 7 && code == ' ' ? 7 : blanks) << count << " before " << code;
    }
  }
}

}  // namespace
