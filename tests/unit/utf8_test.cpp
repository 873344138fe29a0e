#include "host/hxahost/text/utf8.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using namespace std::string_literals;

TEST(Utf8, KeepsValidUtf8AndReadsOtherBytesAsIso8859) {
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

TEST(Utf8, PathsKeepEveryCharacter) {
  EXPECT_EQ(Utf8FromPath(PathFromUtf8("folder/K\xc3\xa4se \xe6\xbc\xa2")), "folder/K\xc3\xa4se \xe6\xbc\xa2");
}

TEST(Utf8, IsReadCharacterByCharacter) {
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
