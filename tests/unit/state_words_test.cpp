#include "host/hxahost/machine/state_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using testing::ElementsAreArray;

struct Case {
  Words (*cut)(std::string_view);
  const char* text;
  Words words;
};

const Case kCases[] = {
    {StateWords,      "Optimal",                         {"optimal"}                     },
    {StateWords,      "Critical (CRT)",                  {"critical", "crt"}             },
    {StateWords,      "Degraded, Rebuilding",            {"degraded", "rebuilding"}      },
    {StateWords,      "Critical - migration (CRM)",      {"critical", "migration", "crm"}},
    {StateWords,      "Defunct hot-spare (DHS)",         {"defunct hot spare", "dhs"}    },
    {StateWords,      "Hot Spare for Logical drive 1",   {"hot spare"}                   },
    {StateWords,      "Ready for removal",               {"ready for removal"}           },
    {StateWords,      " \t Hot   spare \r\n",            {"hot spare"}                   },
    {StateWords,      "Non-Optimal",                     {"non optimal"}                 },
    {StateWords,      "",                                {}                              },
    {StateWords,      " - () ,",                         {}                              },
    {StateWords,      "Okay (OKY",                       {"okay", "oky"}                 },
    {StateWords,      "Opt\xefmal",                      {"opt\xefmal"}                  },
    {FirstWord,       "  Yes (0,8)",                     {"yes"}                         },
    {FirstWord,       "No",                              {"no"}                          },
    {FirstWord,       "  ",                              {}                              },
    {FirstWord,       "Yes,no",                          {"yes"}                         },
    {BracketedWords,  "46 C/ 114 F (Normal)",            {"normal"}                      },
    {BracketedWords,  "46 C/ 114 F",                     {}                              },
    {BracketedWords,  "46 C (High",                      {"high"}                        },
    {CountWords,      "",                                {}                              },
    {CountWords,      "0",                               {"none"}                        },
    {CountWords,      "000",                             {"none"}                        },
    {CountWords,      " 12 ",                            {"some"}                        },
    {CountWords,      "99999999999999999999999999",      {"some"}                        },
    {CountWords,      "many",                            {"many"}                        },
    {DriveCountWords, "3/0/0",                           {"none"}                        },
    {DriveCountWords, "3/1/0",                           {"offline"}                     },
    {DriveCountWords, "3/0/1",                           {"critical"}                    },
    {DriveCountWords, "3 / 1 / 1",                       {"offline", "critical"}         },
    {DriveCountWords, "3/0",                             {"3/0"}                         },
    {DriveCountWords, "3/x/0",                           {"3/x/0"}                       },
    {DriveCountWords, "3//0",                            {"3//0"}                        },
    {WholeText,       "Cut off",                         {"cut off"}                     },
    {LogHead,         "Collection aborted: end of text", {"collection aborted"}          },
    {LogHead,         "\nSomething is wrong.  See.",     {"something is wrong"}          },
};

TEST(StateWords, AreCutAsTheRulesNameThem) {
  for (const Case& each : kCases) EXPECT_THAT(each.cut(each.text), ElementsAreArray(each.words)) << each.text;
}

TEST(StateWords, OfALongTextAreCutInOneGo) {
  std::string text;
  for (int count = 0; count < 100000; ++count) text += "Okay, ";
  EXPECT_EQ(StateWords(text).size(), 100000U);
}

}  // namespace
