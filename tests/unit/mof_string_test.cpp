#include "host/hxahost/text/mof_string.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace hxahost;
using namespace std::string_literals;

TEST(MofString, EscapesCharactersWithAMeaningInMofAndUnsafeOnes) {
  struct Case {
    const char* name;
    std::string text;
    std::string expected;
  };
  const Case cases[] = {
      {"plain",                 "Zentraxis C6",                 R"("Zentraxis C6")"               },
      {"empty",                 "",                             R"("")"                           },
      {"quotes",                "\"a\" 'b'",                    R"("\"a\" 'b'")"                  },
      {"backslash",             "C:\\zenx\\",                   R"("C:\\zenx\\")"                 },
      {"escape",                "\\x41",                        R"("\\x41")"                      },
      {"line ends",             "a\r\nb\tc\b\f",                R"("a\r\nb\tc\b\f")"              },
      {"digits after",          "\x1b" + "1"s,                  R"("\x001B1")"                    },
      {"NUL",                   "a\0b"s,                        "\"a\xe2\x90\x80" + "b\""s        },
      {"DEL and C1",            "\x7f\xc2\x9b",                 R"("\x007F\x009B")"               },
      {"turns the text around", "\xe2\x80\xae",                 R"("\x202E")"                     },
      {"invisible letter",      "\U000e0041",                   R"("\xDB40\xDC41")"               },
      {"UTF-8",                 "K\xc3\xa4se \xf0\x9f\x92\xbe", "\"K\xc3\xa4se \xf0\x9f\x92\xbe\""},
      {"ISO 8859-1",            "K\xe4se\xff",                  "\"K\xc3\xa4se\xc3\xbf\""         },
      {"no characters",         "\xef\xbf\xbe\xef\xbf\xbf",     R"("\xFFFE\xFFFF")"               },
  };
  for (const Case& each : cases) EXPECT_EQ(MofText(each.text), each.expected) << each.name;
}

TEST(MofString, IsSeveralStringsIfItIsLong) {
  EXPECT_EQ(MofText(std::string(1000, 'x'), "  "), '"' + std::string(1000, 'x') + '"');
  EXPECT_EQ(MofText(std::string(2500, 'x'), "  "), '"' + std::string(1000, 'x') + "\"\n  \"" + std::string(1000, 'x') +
                                                       "\"\n  \"" + std::string(500, 'x') + '"');
}

TEST(MofString, CutsNoCharacterAndNoEscape) {
  const std::string text = std::string(999, 'x') + "\x1b\xc3\xa4";
  EXPECT_EQ(MofText(text), '"' + std::string(999, 'x') + "\\x001B\"\n\"\xc3\xa4\"");
}

}  // namespace
