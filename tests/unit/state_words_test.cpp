#include "host/hxahost/machine/state_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace hxahost;
using testing::ElementsAreArray;

struct Case {
  const char* name;
  Words (*cut)(std::string_view);
  const char* text;
  Words words;
};

const Case kCases[] = {
    {"one word",                        StateWords,      "Optimal",                         {"optimal"}                     },
    {"a word and its code",             StateWords,      "Critical (CRT)",                  {"critical", "crt"}             },
    {"two states",                      StateWords,      "Degraded, Rebuilding",            {"degraded", "rebuilding"}      },
    {"two states and a dash",           StateWords,      "Critical - migration (CRM)",      {"critical", "migration", "crm"}},
    {"a hyphen within a word",          StateWords,      "Defunct hot-spare (DHS)",         {"defunct hot spare", "dhs"}    },
    {"whom a spare is for",             StateWords,      "Hot Spare for Logical drive 1",   {"hot spare"}                   },
    {"what another state is for",       StateWords,      "Ready for removal",               {"ready for removal"}           },
    {"blanks and line end",             StateWords,      " \t Hot   spare \r\n",            {"hot spare"}                   },
    {"a negation",                      StateWords,      "Non-Optimal",                     {"non optimal"}                 },
    {"nothing",                         StateWords,      "",                                {}                              },
    {"nothing but signs",               StateWords,      " - () ,",                         {}                              },
    {"a bracket that never closes",     StateWords,      "Okay (OKY",                       {"okay", "oky"}                 },
    {"bytes over 0x7f",                 StateWords,      "Opt\xefmal",                      {"opt\xefmal"}                  },
    {"an answer",                       FirstWord,       "  Yes (0,8)",                     {"yes"}                         },
    {"an answer alone",                 FirstWord,       "No",                              {"no"}                          },
    {"no answer",                       FirstWord,       "  ",                              {}                              },
    {"an answer with a comma",          FirstWord,       "Yes,no",                          {"yes"}                         },
    {"a temperature",                   BracketedWords,  "46 C/ 114 F (Normal)",            {"normal"}                      },
    {"a temperature without a word",    BracketedWords,  "46 C/ 114 F",                     {}                              },
    {"a bracket left open",             BracketedWords,  "46 C (High",                      {"high"}                        },
    {"no count",                        CountWords,      "",                                {}                              },
    {"zero",                            CountWords,      "0",                               {"none"}                        },
    {"several zeros",                   CountWords,      "000",                             {"none"}                        },
    {"some",                            CountWords,      " 12 ",                            {"some"}                        },
    {"a count too long for any number", CountWords,      "99999999999999999999999999",      {"some"}                        },
    {"no number",                       CountWords,      "many",                            {"many"}                        },
    {"drives, all well",                DriveCountWords, "3/0/0",                           {"none"}                        },
    {"drives, one offline",             DriveCountWords, "3/1/0",                           {"offline"}                     },
    {"drives, one critical",            DriveCountWords, "3/0/1",                           {"critical"}                    },
    {"drives, both",                    DriveCountWords, "3 / 1 / 1",                       {"offline", "critical"}         },
    {"drives, two numbers",             DriveCountWords, "3/0",                             {"3/0"}                         },
    {"drives, no number",               DriveCountWords, "3/x/0",                           {"3/x/0"}                       },
    {"drives, a number missing",        DriveCountWords, "3//0",                            {"3//0"}                        },
    {"a whole text",                    WholeText,       "Cut off",                         {"cut off"}                     },
    {"a log entry with a colon",        LogHead,         "Collection aborted: end of text", {"collection aborted"}          },
    {"a log entry with a sentence",     LogHead,         "\nSomething is wrong.  See.",     {"something is wrong"}          },
};

TEST(StateWords, AreCutAsTheRulesNameThem) {
  for (const Case& each : kCases) EXPECT_THAT(each.cut(each.text), ElementsAreArray(each.words)) << each.name;
}

TEST(StateWords, OfALongTextAreCutInOneGo) {
  std::string text;
  for (int count = 0; count < 100000; ++count) text += "Okay, ";
  EXPECT_EQ(StateWords(text).size(), 100000U);
}

}  // namespace
