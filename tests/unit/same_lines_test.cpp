#include "tests/support/same_lines.h"

#include <gtest/gtest.h>

namespace {

TEST(SameLines, AreTheSameLinesInTheSameOrder) {
  EXPECT_TRUE(SameLines({"a", "b"}, {"a", "b"}));
  EXPECT_TRUE(SameLines({}, {}));
}

TEST(SameLines, ShowOnlyThoseThatDiffer) {
  struct Case {
    const char* name;
    Lines expected;
    Lines actual;
    const char* message;
  };
  const Case cases[] = {
      {"one changed",   {"a", "b", "c"},           {"a", "x", "c"},           "\n- b\n+ x"          },
      {"two swapped",   {"a", "b"},                {"b", "a"},                "\n+ b\n- b"          },
      {"one missing",   {"a", "b", "c"},           {"a", "c"},                "\n- b"               },
      {"one more",      {"a"},                     {"a", "a"},                "\n+ a"               },
      {"none expected", {},                        {"a"},                     "\n+ a"               },
      {"none there",    {"a"},                     {},                        "\n- a"               },
      {"far apart",     {"a", "b", "c", "d", "e"}, {"a", "x", "c", "d", "y"}, "\n- b\n+ x\n- e\n+ y"},
  };
  for (const Case& each : cases) {
    const testing::AssertionResult same = SameLines(each.expected, each.actual);
    EXPECT_FALSE(same) << each.name;
    EXPECT_STREQ(same.message(), each.message) << each.name;
  }
}

}  // namespace
