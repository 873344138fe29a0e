#include "host/hxacore/windows/command_line.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <windows.h>

#include <shellapi.h>

namespace {

using namespace NKVRHXA20;

struct QuotingCase {
  const char* name;
  const wchar_t* argument;
  const wchar_t* quoted;
};

constexpr QuotingCase kQuoting[] = {
    {"plain",                          L"getconfig",       LR"(getconfig)"   },
    {"empty",                          L"",                LR"("")"          },
    {"blank",                          L" ",               LR"(" ")"         },
    {"blank inside",                   L"a b",             LR"("a b")"       },
    {"tab",                            L"a\tb",            L"\"a\tb\""       },
    {"line feed",                      L"a\nb",            L"\"a\nb\""       },
    {"quote",                          LR"(")",            LR"("\"")"        },
    {"quotes around",                  LR"("a")",          LR"("\"a\"")"     },
    {"backslash",                      LR"(a\b)",          LR"(a\b)"         },
    {"backslash at the end",           LR"(a\)",           LR"(a\)"          },
    {"backslash at the end, quoted",   LR"(a b\)",         LR"("a b\\")"     },
    {"two backslashes at the end",     LR"(a b\\)",        LR"("a b\\\\")"   },
    {"backslash before a quote",       LR"(a\"b)",         LR"("a\\\"b")"    },
    {"two backslashes before a quote", LR"(a\\"b)",        LR"("a\\\\\"b")"  },
    {"backslashes apart from a quote", LR"(\\a\b "c)",     LR"("\\a\b \"c")" },
    {"not ASCII",                      L"Gr\u00F6\u00DFe", L"Gr\u00F6\u00DFe"},
};

TEST(CommandLine, QuotesAnArgumentOnlyWhereItMust) {
  for (const QuotingCase& one : kQuoting) EXPECT_EQ(QuotedArgument(one.argument), one.quoted) << one.name;
}

TEST(CommandLine, IsReadBackAsTheArgumentsThatItWasMadeOf) {
  for (const QuotingCase& one : kQuoting) {
    const std::wstring line = L"\"zenx//qcmdrun.exe\" " + QuotedArgument(one.argument) + L" last";
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(line.c_str(), &count);
    ASSERT_EQ(count, 3) << one.name;
    EXPECT_STREQ(words[1], one.argument) << one.name;
    EXPECT_STREQ(words[2], L"last") << one.name;
    LocalFree(words);
  }
}

TEST(CommandLine, OfRandomArgumentsIsReadBackAsThese) {
  constexpr std::wstring_view kCharacters = L"\"\"\"\\\\\\  \t\n\v\r%^&|<>()!'`$;*?[]{}~,=/-#@aZ9\u00E9\u20AC\u202E";
  std::mt19937 random(20260305);
  std::uniform_int_distribution<std::size_t> character(0, kCharacters.size() - 1);
  std::uniform_int_distribution length(0, 12);
  for (int list = 0; list < 5000; ++list) {
    std::vector<std::wstring> arguments(8);
    std::wstring line = L"\"zenx//qcmdrun.exe\"";
    for (std::wstring& argument : arguments) {
      for (int left = length(random); left > 0; --left) argument += kCharacters[character(random)];
      line += L" " + QuotedArgument(argument);
    }
    int count = 0;
    wchar_t** const words = CommandLineToArgvW(line.c_str(), &count);
    const std::vector<std::wstring> read(words + 1, words + count);
    LocalFree(words);
    ASSERT_EQ(read, arguments) << "list " << list;
  }
}

TEST(CommandLine, BeginsWithTheProgramInQuotes) {
  EXPECT_EQ(CommandLine("zenx//arcconf.exe", {"getconfig", "1", ""}), LR"("zenx//arcconf.exe" getconfig 1 "")");
  EXPECT_EQ(CommandLine("tool", {}), LR"("tool")");
}

}  // namespace
