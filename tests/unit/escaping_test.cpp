#include "host/hxahost/text/escaping.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using namespace hxahost;
using namespace std::string_literals;

TEST(Escaping, EscapesCharactersThatActOnATerminal) {
  EXPECT_EQ(EscapeControls("a\tb\r\n"), "a\\tb\\r\\n");
  EXPECT_EQ(EscapeControls("\x1b[2J\x7f"), "\\x1b[2J\\x7f");
  EXPECT_EQ(EscapeControls("a\0b"s), "a\\x00b");
  EXPECT_EQ(EscapeControls("\x9bJ"), "\\x9bJ") << "a single byte starts a command, too";
  EXPECT_EQ(EscapeControls("\xc2\x9b"), "\\x9b");
  EXPECT_EQ(EscapeControls("a\xe2\x80\xae."), "a\\u202e.") << "changes the direction of the text";
  EXPECT_EQ(EscapeControls("\xef\xbf\xbe\xef\xbf\xbf"), "\\ufffe\\uffff") << "no characters";
  EXPECT_EQ(EscapeControls("a\xf3\xa0\x81\x81\xe1\xa0\x8e."), "a\\U000e0041\\u180e.") << "an invisible letter";
  EXPECT_EQ(EscapeControls("a\u034f\u115f\u1160\u17b4\u2800\u3164\uffa0\U0001d173\U000e0100\U000e01ef."),
            "a\\u034f\\u115f\\u1160\\u17b4\\u2800\\u3164\\uffa0\\U0001d173\\U000e0100\\U000e01ef.")
      << "invisible characters";
  EXPECT_EQ(EscapeControls("C:\\zenx"), "C:\\zenx") << "a path does not change";
}

// Each range that Unicode lists as Default_Ignorable_Code_Point, and a blank of Braille.
TEST(Escaping, EscapesEveryCharacterThatNobodySees) {
  const std::pair<char32_t, char32_t> ranges[] = {
      {0xad,    0xad   },
      {0x34f,   0x34f  },
      {0x61c,   0x61c  },
      {0x115f,  0x1160 },
      {0x17b4,  0x17b5 },
      {0x180b,  0x180f },
      {0x200b,  0x200f },
      {0x202a,  0x202e },
      {0x2060,  0x206f },
      {0x2800,  0x2800 },
      {0x3164,  0x3164 },
      {0xfe00,  0xfe0f },
      {0xfeff,  0xfeff },
      {0xffa0,  0xffa0 },
      {0xfff0,  0xfff8 },
      {0x1bca0, 0x1bca3},
      {0x1d173, 0x1d17a},
      {0xe0000, 0xe0fff},
  };
  for (const auto& [first, last] : ranges) {
    for (char32_t code = first; code <= last; ++code) {
      EXPECT_TRUE(UnsafeCharacters().Has(code)) << std::hex << static_cast<unsigned>(code);
    }
  }
}

TEST(Escaping, LeavesAFewMarksOnACharacterAndEscapesALongRunOfThem) {
  EXPECT_EQ(EscapeControls("e\u0301\u0323 e\u0301\u0301\u0301\u0301"), "e\u0301\u0323 e\u0301\u0301\u0301\u0301");
  EXPECT_EQ(EscapeControls("e\u0301\u0301\u0301\u0301\u0302\u0303x\u0301"),
            "e\u0301\u0301\u0301\u0301\\u0302\\u0303x\u0301");
}

// Bundles of older versions contain these characters unescaped.
TEST(Escaping, TakesInvisibleCharactersInBundlesOfOlderPrograms) {
  EXPECT_EQ(PrintableLength("\u3164"), 3U);
  EXPECT_EQ(PrintableLength("\u202e"), 0U);
}

TEST(Escaping, LosesWhiteSpaceAtBothEndsForPeople) {
  EXPECT_EQ(Printable(" \tOptimal \r\n"), "Optimal");
  EXPECT_EQ(Printable(" \r\n"), "");
  EXPECT_EQ(Printable("two\r\nlines\n"), "two\\r\\nlines");
}

}  // namespace
