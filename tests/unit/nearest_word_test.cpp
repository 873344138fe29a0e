#include "host/hxahost/text/nearest_word.h"

#include <gtest/gtest.h>

namespace {

using hxahost::NearestWord;

TEST(NearestWord, IsTheOneWithTheFewestMistakesOrNone) {
  struct Case {
    const char* typed;
    const char* expected;
  };
  const Case cases[] = {
      {"query",    "query"       },
      {"qurey",    "query"       },
      {"querry",   "query"       },
      {"quey",     "query"       },
      {"quary",    "query"       },
      {"machine",  "machine-name"},
      {"machines", ""            },
      {"lis",      "list"        },
      {"collect",  ""            },
      {"q",        ""            },
      {"",         ""            },
  };
  for (const Case& each : cases) {
    EXPECT_EQ(NearestWord(each.typed, {"query", "list", "machine-name"}), each.expected) << each.typed;
  }
  EXPECT_EQ(NearestWord("query", {}), "");
}

}  // namespace
