#include "host/hxahost/text/json_output.h"

#include <string>

#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using Json = nlohmann::ordered_json;

TEST(JsonOutput, EscapesUnsafeCharactersAndIsTheSameJson) {
  struct Case {
    const char* name;
    std::string text;
    std::string expected;
  };
  const Case cases[] = {
      {"UTF-8",               "K\xc3\xa4se \u78c1", R"("K\u00e4se \u78c1")"},
      {"quote and backslash", "\"\\",               "\"\\\"\\\\\""         },
      {"control",             "\x1b[2J\n",          "\"\\u001b[2J\\n\""    },
      {"delete",              "a\x7f",              "\"a\\u007f\""         },
      {"C1 control",          "\u009b2J",           "\"\\u009b2J\""        },
      {"turned text",         "a\u202e.\u202c",     "\"a\\u202e.\\u202c\"" },
      {"line end",            "\u2028\u0085",       "\"\\u2028\\u0085\""   },
      {"invisible letter",    "\U000e0041",         "\"\\udb40\\udc41\""   },
      {"beyond four digits",  "\xf0\x9f\x92\xbe",   R"("\ud83d\udcbe")"    },
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.name);
    EXPECT_EQ(JsonText(each.text), each.expected);
    EXPECT_EQ(Json::parse(JsonText(each.text)), Json(each.text));
  }
}

TEST(JsonOutput, IsLaidOutInLines) {
  const Json json = {
      {"key\u202e", {1, nullptr}}
  };
  EXPECT_EQ(JsonText(json, 2), "{\n  \"key\\u202e\": [\n    1,\n    null\n  ]\n}");
  EXPECT_EQ(JsonText(json), "{\"key\\u202e\":[1,null]}");
}

}  // namespace
