#include "publish/version_split.h"

#include <gtest/gtest.h>

namespace {

TEST(VersionSplit, DividesAtTheFirstParentheses) {
  struct Case {
    const char* name;
    std::string_view text;
    std::string_view version;
    std::string_view build;
  };
  constexpr Case kCases[] = {
      {"version and build",          "5.2-0 (12345)",    "5.2-0 ",    "12345"    },
      {"no parentheses",             "5.2-0",            "5.2-0",     ""         },
      {"opened and not closed",      "1.0 (abc",         "1.0 (abc",  "1.0 (abc" },
      {"closed and not opened",      "1.0 abc)",         "1.0 abc)",  ""         },
      {"closed before it is opened", "1.0) (abc",        "1.0) (abc", "1.0) (abc"},
      {"closed before and after",    ")1.0 (2)",         ")1.0 ",     "2"        },
      {"nothing inside",             "1.0()",            "1.0",       ""         },
      {"nothing before",             "(7)",              "",          "7"        },
      {"more after",                 "1.0 (2) beta (3)", "1.0 ",      "2"        },
      {"nested",                     "1.0 ((2))",        "1.0 ",      "(2"       },
      {"nothing",                    "",                 "",          ""         },
      {"only an opening",            "(",                "(",         "("        },
  };
  for (const Case& one : kCases) {
    const auto [version, build] = SplitVersion(one.text);
    EXPECT_EQ(version, one.version) << one.name;
    EXPECT_EQ(build, one.build) << one.name;
  }
}

}  // namespace
