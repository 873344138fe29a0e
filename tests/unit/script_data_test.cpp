#include "host/hxahost/views/report/script_data.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using hxahost::ScriptData;
using namespace std::string_literals;

std::string Written(const std::vector<std::string>& parts) {
  std::ostringstream page;
  {
    ScriptData buffer(page);
    std::ostream data(&buffer);
    for (const std::string& part : parts) data << part;
  }
  return page.str();
}

struct Case {
  const char* name;
  std::string json;
  std::string written;
};

const Case kCases[] = {
    {"nothing",                             "",                             ""                                 },
    {"text without anything to escape",     R"({"a": "b > c & d"})",        R"({"a": "b > c & d"})"            },
    {"the end of the element",              R"("</script><script>x")",      R"("\u003c/script>\u003cscript>x")"},
    {"the beginning of a comment",          R"("<!--<script")",             R"("\u003c!--\u003cscript")"       },
    {"both line ends",                      "\"\xe2\x80\xa8\xe2\x80\xa9\"", R"("\u2028\u2029")"                },
    {"a neighbour of the line ends",        "\"\xe2\x80\xa7\xe2\x80\xaa\"", "\"\xe2\x80\xa7\xe2\x80\xaa\""     },
    {"a lead byte twice before a line end", "\xe2\xe2\x80\xe2\x80\xa8",     "\xe2\xe2\x80\\u2028"              },
    {"a lead byte at the end",              "a\xe2\x80",                    "a\xe2\x80"                        },
    {"a zero byte",                         "a\0<"s,                        "a\0\\u003c"s                      },
    {"a byte that is no character's",       "\xff<",                        "\xff\\u003c"                      },
};

TEST(ScriptData, LeavesNothingThatEndsOrBeginsAnElement) {
  for (const Case& each : kCases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(Written({each.json}), each.written);
  }
}

TEST(ScriptData, EscapesTheSameWhereverTheTextIsCut) {
  for (const Case& each : kCases) {
    for (std::size_t cut = 0; cut <= each.json.size(); ++cut) {
      SCOPED_TRACE(each.name + (" cut at "s + std::to_string(cut)));
      EXPECT_EQ(Written({each.json.substr(0, cut), each.json.substr(cut)}), each.written);
    }
  }
}

TEST(ScriptData, TakesSingleCharacters) {
  std::ostringstream page;
  {
    ScriptData buffer(page);
    for (const char character : "<\xe2\x80\xa8"s) buffer.sputc(character);
  }
  EXPECT_EQ(page.str(), "\\u003c\\u2028");
}

}  // namespace
