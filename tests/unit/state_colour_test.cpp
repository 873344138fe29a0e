#include "host/hxahost/terminal/state_colour.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using hxahost::InStateColour;

TEST(StateColour, FollowsTheFirstWordAndKeepsTheText) {
  struct Case {
    const char* text;
    const char* colour;  // "" for none
  };
  const Case cases[] = {
      {"Failed",                        "\x1b[31m"},
      {"Defunct hot-spare (DHS)",       "\x1b[31m"},
      {"OFFLINE",                       "\x1b[31m"},
      {"Yes (0,8)",                     "\x1b[31m"},
      {"Critical (CRT)",                "\x1b[33m"},
      {"Rebuild (RBL)",                 "\x1b[33m"},
      {"Online (ONL)",                  "\x1b[32m"},
      {"Hot Spare for Logical drive 1", "\x1b[32m"},
      {"No",                            ""        },
      {"Onlinely",                      ""        },
      {"Somehow failed",                ""        },
      {"",                              ""        },
  };
  for (const Case& each : cases) {
    const std::string colour = each.colour;
    EXPECT_EQ(InStateColour(each.text), colour + each.text + (colour.empty() ? "" : "\x1b[0m")) << each.text;
  }
}

}  // namespace
