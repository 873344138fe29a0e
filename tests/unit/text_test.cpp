#include "host/hxahost/text/text.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using namespace std::string_literals;

TEST(Text, KeepsValidUtf8AndReadsOtherBytesAsIso8859) {
  struct Case {
    const char* name;
    std::string bytes;
    std::string expected;
  };
  const Case cases[] = {
      {"plain",                        "disk 1",               "disk 1"                                  },
      {"empty",                        "",                     ""                                        },
      {"NUL",                          "a\0b"s,                "a\0b"s                                   },
      {"two bytes",                    "K\xc3\xa4se",          "K\xc3\xa4se"                             },
      {"three bytes",                  "\xe2\x82\xac",         "\xe2\x82\xac"                            },
      {"four bytes",                   "\xf0\x9f\x98\x80",     "\xf0\x9f\x98\x80"                        },
      {"ISO 8859-1",                   "K\xe4se",              "K\xc3\xa4se"                             },
      {"a valid part and a wrong one", "\xc3\xa4 \xe4",        "\xc3\x83\xc2\xa4 \xc3\xa4"               },
      {"cut off",                      "\xe2\x82",             "\xc3\xa2\xc2\x82"                        },
      {"longer than needed",           "\xc0\x80",             "\xc3\x80\xc2\x80"                        },
      {"surrogate",                    "\xed\xa0\x80",         "\xc3\xad\xc2\xa0\xc2\x80"                },
      {"past the last character",      "\xf4\x90\x80\x80",     "\xc3\xb4\xc2\x90\xc2\x80\xc2\x80"        },
      {"five bytes",                   "\xf8\x88\x80\x80\x80", "\xc3\xb8\xc2\x88\xc2\x80\xc2\x80\xc2\x80"},
      {"a byte that only continues",   "\x80",                 "\xc2\x80"                                },
  };
  for (const Case& each : cases) EXPECT_EQ(AsUtf8(each.bytes), each.expected) << each.name;
}

TEST(Text, EscapesWhatWouldActOnATerminal) {
  EXPECT_EQ(EscapeControls("a\tb\r\n"), "a\\tb\\r\\n");
  EXPECT_EQ(EscapeControls("\x1b[2J\x7f"), "\\x1b[2J\\x7f");
  EXPECT_EQ(EscapeControls("a\0b"s), "a\\x00b");
  EXPECT_EQ(EscapeControls("\x9b"
                           "2J"),
            "\\x9b2J")
      << "a single byte starts a command, too";
  EXPECT_EQ(EscapeControls("\xc2\x9b"), "\\x9b");
  EXPECT_EQ(EscapeControls("a\xe2\x80\xae."), "a\\u202e.") << "turns the direction of the text";
  EXPECT_EQ(EscapeControls("\xef\xbf\xbe\xef\xbf\xbf"), "\\ufffe\\uffff") << "no characters";
  EXPECT_EQ(EscapeControls("a\xf3\xa0\x81\x81\xe1\xa0\x8e."), "a\\U000e0041\\u180e.") << "an invisible letter";
  EXPECT_EQ(EscapeControls("C:\\zenx"), "C:\\zenx") << "a path stays as it is";
}

TEST(Text, LosesWhiteSpaceAtBothEndsForPeople) {
  EXPECT_EQ(Printable(" \tOptimal \r\n"), "Optimal");
  EXPECT_EQ(Printable(" \r\n"), "");
  EXPECT_EQ(Printable("two\r\nlines\n"), "two\\r\\nlines");
}

TEST(Text, CountsTheColumnsOfATerminal) {
  EXPECT_EQ(DisplayWidth("disk"), 4U);
  EXPECT_EQ(DisplayWidth("K\xc3\xa4se"), 4U);
  EXPECT_EQ(DisplayWidth("\xe6\xbc\xa2"), 2U) << "a wide character";
}

TEST(Text, CutsWithAnEllipsisInsideTheWidth) {
  EXPECT_EQ(CutToWidth("Optimal", 7), "Optimal");
  EXPECT_EQ(CutToWidth("Optimal", 6), "Optim\u2026");
  EXPECT_EQ(CutToWidth("Optimal", 1), "\u2026");
  EXPECT_EQ(CutToWidth("Optimal", 0), "");
  EXPECT_EQ(CutToWidth("\xc3\xa4\xc3\xb6\xc3\xbc", 2), "\xc3\xa4\u2026") << "no character is cut in two";
  EXPECT_EQ(CutToWidth("\xe6\xbc\xa2\xe6\xbc\xa2", 3), "\xe6\xbc\xa2\u2026");
}

TEST(Text, PathsKeepEveryCharacter) {
  EXPECT_EQ(Utf8FromPath(PathFromUtf8("folder/K\xc3\xa4se \xe6\xbc\xa2")), "folder/K\xc3\xa4se \xe6\xbc\xa2");
}

TEST(Text, CountsNoColumnForACombiningMarkAndCutsItWithItsLetter) {
  EXPECT_EQ(DisplayWidth("e\u0301a\u20dd"), 2U);
  EXPECT_EQ(CutToWidth("e\u0301e\u0301e\u0301", 2), "e\u0301\u2026");
}

TEST(Text, IsReadCharacterByCharacter) {
  struct Case {
    const char* name;
    std::string_view text;
    char32_t code;
    std::size_t length;
  };
  const Case cases[] = {
      {"ASCII",                  "ab",               'a',     1},
      {"two bytes",              "\xc3\xa4x",        0xe4,    2},
      {"four bytes",             "\xf0\x9f\x92\xbe", 0x1f4be, 4},
      {"no UTF-8: byte by byte", "\xff\xfe",         0,       1},
      {"cut off",                "\xf0\x9f",         0,       1},
  };
  for (const Case& each : cases) {
    const Character character = NextCharacter(each.text);
    EXPECT_EQ(character.code, each.code) << each.name;
    EXPECT_EQ(character.length, each.length) << each.name;
  }
}

}  // namespace
