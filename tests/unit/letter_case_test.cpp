#include "host/hxahost/text/letter_case.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace hxahost;

std::u32string Small(std::u32string text) {
  for (char32_t& code : text) code = FoldCase(code);
  return text;
}

TEST(LetterCase, IsThatOfEachScript) {
  EXPECT_EQ(Small(U"AZ az @[`{ 09"), U"az az @[`{ 09");
  EXPECT_EQ(Small(U"\u00c0\u00d6\u00d7\u00d8\u00de\u00df"), U"\u00e0\u00f6\u00d7\u00f8\u00fe\u00df");
  EXPECT_EQ(Small(U"\u0104\u0105\u0141\u0142\u0178\u017d"), U"\u0105\u0105\u0142\u0142\u00ff\u017e");
  EXPECT_EQ(Small(U"\u0218\u0219\u01a0\u023a\u1eb8"), U"\u0219\u0219\u01a1\u2c65\u1eb9");
  EXPECT_EQ(Small(U"\u0391\u03a9\u0386\u03c2"), U"\u03b1\u03c9\u03ac\u03c3");
  EXPECT_EQ(Small(U"\u0410\u042f\u0401\u0490"), U"\u0430\u044f\u0451\u0491");
  EXPECT_EQ(Small(U"\u0531\u0556"), U"\u0561\u0586");
  EXPECT_EQ(Small(U"I\u0130i\u0131"), U"iiii") << "Turkish";
  EXPECT_EQ(Small(U"\u6771\U0001f600\U0010ffff"), U"\u6771\U0001f600\U0010ffff");
}

}  // namespace
