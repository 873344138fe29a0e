#include "host/hxahost/views/report/script_data.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using hxahost::ScriptData;
using namespace std::string_literals;

TEST(ScriptData, LeavesNothingThatEndsOrBeginsAnElement) {
  struct Case {
    const char* name;
    std::string json;
    std::string written;
  };
  const Case cases[] = {
      {"nothing",                         "",                        ""                                 },
      {"text without anything to escape", R"({"a": "b > c & d"})",   R"({"a": "b > c & d"})"            },
      {"the end of the element",          R"("</script><script>x")", R"("\u003c/script>\u003cscript>x")"},
      {"the beginning of a comment",      R"("<!--<script")",        R"("\u003c!--\u003cscript")"       },
      {"a zero byte",                     "a\0<"s,                   "a\0\\u003c"s                      },
      {"a byte that is no character's",   "\xff<",                   "\xff\\u003c"                      },
  };
  for (const Case& each : cases) {
    std::ostringstream page;
    ScriptData buffer(page);
    std::ostream(&buffer) << each.json;
    EXPECT_EQ(page.str(), each.written) << each.name;
  }
}

}  // namespace
