// The lines of the tools' texts that no property shows: on the sample machine, and after a tool changes its words.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/hxahost_run.h"
#include "tests/support/machine_copy.h"
#include "tests/support/raid_log_setting.h"

namespace {

using Json = nlohmann::ordered_json;
using testing::Contains;
using testing::HasSubstr;

Json UnreadOf(const std::string& machine, const std::string& name) {
  const ProgramResult result = RunHxahost({"query", "--format", "json", "--unread", machine, name});
  EXPECT_EQ(result.exitStatus, 0) << result.err;
  return Json::parse(result.out)["queries"][0]["unread"];
}

// "command: number text" for each line, blanks included.
std::vector<std::string> Listed(const Json& unread) {
  std::vector<std::string> all;
  for (const Json& text : unread) {
    for (const Json& line : text["lines"]) {
      all.push_back(std::string(text["command"]) + ": " + line["number"].dump() + " " + std::string(line["text"]));
    }
  }
  return all;
}

TEST(Unread, ListsTheUnpublishedLinesOfTheSampleMachine) {
  std::vector<std::string> commands;
  std::size_t lines = 0;
  for (const Json& text : UnreadOf("--replay", RecordedSampleMachine())) {
    if (!text["command"].get<std::string>().starts_with("raid-manager")) commands.push_back(text["command"]);
    lines += text["lines"].size();
  }
  EXPECT_EQ(lines, 31U);
  EXPECT_EQ(commands,
            (std::vector<std::string>{"zenx//qcmdrun.exe getconfig 1 al", "zenx//qcmdrun.exe getstatus 1 device",
                                      "zenx//qcmdrun.exe getconfig 2 al", "zenx//hrconf_64.exe getstatus 1 nuthin",
                                      "zenx//arcconf.exe getconfig 1 al", "zenx//arcconf.exe getlogs 1 device",
                                      "zenx//arcconf.exe getlogs 1 dead", "zenx//arcconf.exe getlogs 1 event",
                                      "zenx//arcconf.exe getlogs 1 uart", "zenx//arcconf.exe getconfig 2 al",
                                      "zenx//arcconf.exe getlogs 2 event", "zenx//arcconf.exe getlogs 2 uart"}));
}

TEST(Unread, ShowsAtOnceThatAToolHasNewWords) {
  const RaidLogSetting setting("raid-manager\\");
  const MachineCopy machine;
  machine.Replace("arcconf/1/getconfig-al", "EC Version#         ", "Engineering level   ");
  machine.Replace("qcmdrun/1/getstatus-device", "   Status                              : In progress",
                  "   Status                              : In progress\n   Phase of 3                          : 2nd");
  const std::vector<std::string> listed = Listed(UnreadOf("--directory", machine.Directory()));
  EXPECT_EQ(listed.size(), 33U);
  EXPECT_THAT(listed, Contains("zenx//arcconf.exe getconfig 1 al: 34    "
                               "Engineering level                        : J85096"));
  EXPECT_THAT(listed,
              Contains("zenx//qcmdrun.exe getstatus 1 device: 10    Phase of 3                          : 2nd"));
}

TEST(Unread, AreCountedAndListedBelowTheTables) {
  const ProgramResult result = RunHxahost({"query", "--unread", "--replay", RecordedSampleMachine()});
  EXPECT_THAT(result.out, HasSubstr("\nLines of the tools' texts that nothing above shows: 31\n"));
  EXPECT_THAT(result.out, HasSubstr("  zenx//qcmdrun.exe getstatus 1 device: 1\n    12  Percentage complete"));
}

}  // namespace
