#include "collect/blanks.h"

#include <gtest/gtest.h>

#include <string>

namespace blanks_test {
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

}  // namespace
}  // namespace blanks_test
