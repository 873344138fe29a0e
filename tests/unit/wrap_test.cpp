#include "host/hxahost/terminal/wrap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace hxahost;
using testing::ElementsAre;

TEST(Wrap, KeepsWordsTogetherThatFit) {
  EXPECT_THAT(WrapWords("one two three", 7), ElementsAre("one two", "three"));
  EXPECT_THAT(WrapWords("one", 3), ElementsAre("one"));
}

// The name of a drive may be one long word.
TEST(Wrap, ContinuesALongWordOnTheNextLine) {
  EXPECT_THAT(WrapWords("a 12345678 b", 4), ElementsAre("a", "1234", "5678", "b"));
  EXPECT_THAT(WrapWords("a 1234567 b", 4), ElementsAre("a", "1234", "567", "b"));
  EXPECT_THAT(WrapWords("123456 7", 4), ElementsAre("1234", "56 7"));
  EXPECT_THAT(WrapWords("\u6f22\u6f22\u6f22", 5), ElementsAre("\u6f22\u6f22", "\u6f22")) << "wide characters";
  EXPECT_THAT(WrapWords("e\u0301e\u0301e\u0301", 2), ElementsAre("e\u0301e\u0301", "e\u0301"));
}

TEST(Wrap, TakesAVeryLongWord) { EXPECT_EQ(WrapWords(std::string(1U << 22U, 'x'), 40).size(), 104858U); }

}  // namespace
