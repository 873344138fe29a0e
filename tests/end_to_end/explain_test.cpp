// "hxahost explain" in use: the real program on the recorded sample machine.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/bundle/bundle_file.h"
#include "host/hxahost/bundle/write_bundle.h"
#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
using testing::AllOf;
using testing::HasSubstr;

ProgramResult Explain(std::vector<std::string> words) {
  words.insert(words.begin(), {"explain", "--replay", RecordedSampleMachine(), "--width", "80"});
  return RunHxahost(words);
}

constexpr std::string_view kState = "State                              : Failed";
constexpr std::string_view kScsiId = "Reported Channel,Device            : 0,8";

// The number of the line with the text in arcconf's answer on its first controller.
std::string LineOf(std::string_view text) {
  const std::string answer = MachineCopy().Answer("arcconf/1/getconfig-al");
  const auto end = answer.begin() + static_cast<std::ptrdiff_t>(answer.find(text));
  return std::to_string(std::count(answer.begin(), end, '\n') + 1);
}

TEST(Explain, ShowsTheLineOfEachValueOrItsOrigin) {
  const ProgramResult result = Explain({"enclosure", "0,", "slot", "8"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out,
              AllOf(HasSubstr("enclosure 0, slot 8: Hard drive at channel 0, ID 8 of controller "),
                    HasSubstr("\n\nzenx//arcconf.exe getconfig 1 al\n  Property "),
                    HasSubstr("\n  State             Failed                            " + LineOf(kState) + "\n"),
                    HasSubstr("\n  ScsiId            8                                 " + LineOf(kScsiId) + "\n"),
                    HasSubstr("\n\nComposed, counted or fixed\n"),
                    HasSubstr("\n  OtherIdentifyingInfo: Hard drive, Channel:0|SCSI ID:8\n"
                              "      DeviceType; fixed text, Channel and ScsiId\n")));
}

// Expects the first words of the answer, or the one line of an error.
TEST(Explain, TakesAnObjectByAnyOfItsNames) {
  struct Case {
    std::string words;
    std::string answer;
  };
  const Case cases[] = {
      {"C1",                                     "C1: controller 1 (Zentraxis C6-e)\n"                           },
      {"controller 1",                           "C1: controller 1 "                                             },
      {"Zentraxis1",                             "C1: controller 1 "                                             },
      {"C1 LD3",                                 "C1 LD3: logical drive 3 of controller 1\n"                     },
      {"controller 1, logical drive 3",          "C1 LD3: "                                                      },
      {"Database",                               "logical drive 2 (Database) of controller "                     },
      {"C1 array b",                             "C1 array B"                                                    },
      {"C1 channel 2, ID 4",                     "C1 channel 2, ID 4: Hard disk "                                },
      {"slot 8",                                 "enclosure 0, slot 8: "                                         },
      {"enclosure 0, slot 8",                    "enclosure 0, slot 8: "                                         },
      {"C1 CH1 I00:TALVERA T36LW10 S96H8B01234", "C1 channel 1, ID 0: "                                          },
      {"channel 1 id 1",                         " is not one object alone: name one of \"C1 channel 1, ID 1\", "},
      {"C1 LD9",                                 "\"C1 LD9\": did you mean \"C1 LD1\", \"C1 LD2\", \"C1 LD3\"?"  },
      {"NV3LE7",                                 "Nothing is called \"NV3LE7\": did you mean \"C"                },
      {"databse",                                "Nothing is called \"databse\": did you mean \"C"               },
      {"C99",                                    "Nothing is called \"C99\": \"hxahost query\" lists "           },
  };
  for (const Case& each : cases) {
    const ProgramResult result = Explain({each.words});
    const bool isFound = result.err.empty();
    EXPECT_EQ(result.exitStatus, isFound ? 0 : 2);
    EXPECT_THAT((isFound ? result.out : result.err).substr(0, 200), HasSubstr(each.answer));
  }
}

// At the last request for its configuration a tool reports another state than before.
std::string BundleOfAChange(const TemporaryFolder& folder) {
  Bundle bundle = ReadBundleFile(RunOfSampleMachine().bundle);
  const std::vector<std::string> arguments = {"getconfig", "1", "al"};
  RecordedRun* last = nullptr;
  for (RecordedRun& run : bundle.runs) {
    if (run.path == "zenx//arcconf.exe" && run.arguments == arguments) last = &run;
  }
  last->result.output.replace(last->result.output.find(kState), kState.size(), "State : Missing");
  return Utf8FromPath(folder.Write("changed.bundle", WriteBundle(bundle)));
}

TEST(Explain, ShowsValuesThatTheToolLaterAnsweredDifferently) {
  const TemporaryFolder folder;
  const ProgramResult result =
      RunHxahost({"explain", "--replay", BundleOfAChange(folder), "NV3LE77Q2H", "--width", "80"});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  EXPECT_THAT(result.out,
              AllOf(HasSubstr("  Line  but it says\n"), HasSubstr("  " + LineOf(kState) + "   State : Failed\n"),
                    HasSubstr("\n  State             Missing ")));
}

}  // namespace
