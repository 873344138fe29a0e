#include "host/hxahost/bundle/text_mask.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <string>

#include "host/hxahost/bundle/folded_text.h"
#include "host/hxahost/text/utf8.h"

namespace {

using namespace hxahost;

RandomSource Seeded(unsigned seed) {
  return [engine = std::mt19937(seed)]() mutable { return static_cast<std::uint32_t>(engine()); };
}

char KindOf(char character) {
  if (character >= '0' && character <= '9') return '0';
  if (character >= 'a' && character <= 'z') return 'a';
  if (character >= 'A' && character <= 'Z') return 'A';
  return character;
}

std::string KindsOf(std::string text) {
  for (char& character : text) character = KindOf(character);
  return text;
}

TEST(TextMask, KeepsLengthAndKindsOfCharacters) {
  TextMask mask(Seeded(1));
  for (const char* const text : {"NV3LE77Q2H", "My Data-Base (2)", "x", "7", "C:\\Users\\jo", "", "---", " a "}) {
    EXPECT_EQ(KindsOf(mask.Mask(text)), KindsOf(text)) << text;
  }
  EXPECT_NE(mask.Mask("NV3LE77Q2H"), "NV3LE77Q2H");
}

TEST(TextMask, UsesTheSameMaskForATextInEitherCase) {
  TextMask mask(Seeded(1));
  const std::string upper = mask.Mask("DBSERVER");
  EXPECT_EQ(mask.Mask("DBSERVER"), upper);
  EXPECT_EQ(FoldCase(mask.Mask("DbServer")), FoldCase(upper));
  EXPECT_EQ(KindsOf(mask.Mask("DbServer")), "AaAaaaaa");
}

TEST(TextMask, NeverGivesTwoTextsOneMaskAlsoWhereThereAreFew) {
  TextMask mask(Seeded(3));
  std::set<std::string> masks;
  for (char digit = '0'; digit <= '9'; ++digit) masks.insert(mask.Mask(std::string(1, digit)));
  EXPECT_EQ(masks.size(), 10U);
  for (char letter = 'a'; letter <= 'z'; ++letter) masks.insert(mask.Mask(std::string(1, letter)));
  EXPECT_EQ(masks.size(), 36U);
  for (int number = 10000; number < 12000; ++number) masks.insert(mask.Mask("SN" + std::to_string(number)));
  EXPECT_EQ(masks.size(), 2036U);
}

TEST(TextMask, IsAnotherOneEachTime) {
  TextMask one(SystemRandom());
  TextMask other(SystemRandom());
  EXPECT_NE(one.Mask("5000F0A0001B4000"), other.Mask("5000F0A0001B4000"));
  TextMask again(Seeded(7));
  TextMask same(Seeded(7));
  EXPECT_EQ(again.Mask("5000F0A0001B4000"), same.Mask("5000F0A0001B4000"));
}

TEST(TextMask, HidesCharactersBeyondAsciiInTheirEncoding) {
  TextMask mask(Seeded(2));
  const std::string utf8 = "K\xc3\xa4se \xe2\x82\xac \xf0\x9f\x98\x80";
  EXPECT_EQ(mask.Mask(utf8).size(), utf8.size());
  EXPECT_EQ(AsUtf8(mask.Mask(utf8)), mask.Mask(utf8));
  EXPECT_EQ(mask.Mask(utf8).find("\xc3\xa4"), std::string::npos);
  const std::string latin1 = "K\xe4se";
  EXPECT_EQ(mask.Mask(latin1).size(), latin1.size());
  EXPECT_NE(AsUtf8(mask.Mask(latin1)), mask.Mask(latin1));
}

// No mask may be a word by which the tools' texts are read.
TEST(TextMask, HasNoVowels) {
  TextMask mask(Seeded(4));
  for (const char* const text : {"BIOS", "State", "Failed", "Target on SCSI ID", "FRU", "PFA"}) {
    EXPECT_EQ(FoldCase(mask.Mask(text)).find_first_of("aeiou"), std::string::npos) << text;
  }
}

}  // namespace
