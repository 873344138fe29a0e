#include "host/hxahost/result/tool_answer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/tool_text.h"

namespace {

using hxahost::KnownTools;
using hxahost::Outcome;
using hxahost::OutcomeOfWord;
using hxahost::OutcomeWord;
using hxahost::ReadAnswer;
using hxahost::ReadToolAnswer;
using hxahost::ToolName;

const std::vector<std::string> kProbe = {"getconfig", "1", "al"};
const std::vector<std::string> kLog = {"getlogs", "1", "event"};
const std::string kWhole = "Controller information\nCommand completed successfully.\n";

// The same with carriage returns and without.
void ExpectAnswer(std::string_view tool, const std::vector<std::string>& arguments, const std::string& output,
                  Outcome outcome, std::string_view reason) {
  for (const std::string& text : {output, CrLf(output)}) {
    const ReadAnswer answer = ReadToolAnswer(tool, arguments, text);
    EXPECT_EQ(OutcomeWord(answer.outcome), OutcomeWord(outcome)) << tool << ": " << output;
    EXPECT_EQ(answer.reason, reason) << tool << ": " << output;
  }
}

TEST(ToolAnswer, JudgesAnswers) {
  ExpectAnswer("arcconf", kProbe, kWhole, Outcome::kOk, "");
  ExpectAnswer("arcconf", kLog, "x\nCommand completed successfully.\n", Outcome::kOk, "");
  ExpectAnswer("arcconf", kProbe, "Controllers found: 0\n", Outcome::kRefused, "Controllers found: 0");
  ExpectAnswer("arcconf", kProbe, "Controllers found: 2\nInvalid controller number.\n", Outcome::kRefused,
               "Invalid controller number.");
  ExpectAnswer("hrconf_64", kProbe, "Controllers found: 0\n", Outcome::kRefused, "Controllers found: 0");
  ExpectAnswer("hrconf_64", kProbe, "Invalid controller number.\n", Outcome::kRefused, "Invalid controller number.");
  ExpectAnswer("qcmdrun", kProbe, "Found 0 KVR Zentraxis controller(s)\n", Outcome::kRefused,
               "Found 0 KVR Zentraxis controller(s)");
  ExpectAnswer("qcmdrun", kProbe, "Not in use.\n  Command aborted.\n", Outcome::kRefused, "Command aborted.");
  ExpectAnswer("qcmdrun", kProbe, "Controllers found: 0\n" + kWhole, Outcome::kOk, "");
  ExpectAnswer("arcconf", kProbe, "Controllers found: 0\n" + kWhole, Outcome::kRefused, "Controllers found: 0");
  ExpectAnswer("qcmdrun", kLog, "| Command aborted |\nCommand completed successfully.\n", Outcome::kOk, "");
  ExpectAnswer("qcmdrun", kLog, "Command aborted.\n", Outcome::kRefused, "Command aborted.");
  ExpectAnswer("arcconf", kProbe, "Controllers found: 1\nDriver Update Required\n", Outcome::kFailed,
               "Driver Update Required");
  ExpectAnswer("arcconf", kProbe, "Command completed successfully.\n", Outcome::kFailed,
               "its answer has no \"Controller information\"");
  ExpectAnswer("arcconf", kProbe, "", Outcome::kEmpty, "it wrote nothing");
  ExpectAnswer("arcconf", kLog, " \n\t\n", Outcome::kEmpty, "it wrote nothing");
  ExpectAnswer("arcconf", kProbe, "Controller information\n   Mod", Outcome::kCutOff, "its last line is \"Mod\"");
  ExpectAnswer("arcconf", kProbe, "Controllers found: 1", Outcome::kCutOff,
               "its last line is \"Controllers found: 1\"");
  ExpectAnswer("qcmdrun", kLog, "Found 1 KVR Zentraxis controller(s)\nCommand completed succ", Outcome::kCutOff,
               "its last line is \"Command completed succ\"");
  ExpectAnswer("arcconf", kLog, "Segmentation fault", Outcome::kFailed, "printed no valid report: Segmentation fault");
  ExpectAnswer("arcconf", kProbe, "Zentraxis utility\n\nAccess is denied: be an Administrator.", Outcome::kFailed,
               "Access is denied: be an Administrator.");
  ExpectAnswer("other", kProbe, "whatever", Outcome::kOk, "");
  ExpectAnswer("arcconf", {}, "x", Outcome::kFailed, "printed no valid report: x");
}

TEST(ToolAnswer, NamesEachOutcomeInTheWordsThatProgramsRelyOn) {
  EXPECT_EQ(OutcomeWord(Outcome::kOk), "ok");
  EXPECT_EQ(OutcomeWord(Outcome::kRefused), "refused");
  EXPECT_EQ(OutcomeWord(Outcome::kNotInstalled), "not installed");
  EXPECT_EQ(OutcomeWord(Outcome::kEmpty), "empty");
  EXPECT_EQ(OutcomeWord(Outcome::kFailed), "failed");
  EXPECT_EQ(OutcomeWord(Outcome::kCutOff), "cut off");
  EXPECT_EQ(OutcomeWord(Outcome::kNotAsked), "not asked");
  EXPECT_EQ(OutcomeWord(Outcome::kTimedOut), "timed out");
  EXPECT_EQ(OutcomeWord(Outcome::kNotStarted), "not started");
}

TEST(ToolAnswer, LetsNoTerminalCommandThroughInAReason) {
  const ReadAnswer answer = ReadToolAnswer("arcconf", kProbe, "\x1b[2J gone");
  EXPECT_EQ(answer.reason, "printed no valid report: \\x1b[2J gone");
}

TEST(ToolAnswer, ShowsTheBeginningOfALineOf16MiB) {
  const std::string line(std::size_t{16} << 20, '\x01');
  const std::string garbage = ReadToolAnswer("arcconf", kProbe, line).reason;
  EXPECT_TRUE(garbage.starts_with("printed no valid report: \\x01\\x01")) << garbage;
  EXPECT_LT(garbage.size(), 90U);
  const std::string cut = ReadToolAnswer("arcconf", kProbe, "Controllers found: 1\n" + line).reason;
  EXPECT_TRUE(cut.starts_with("its last line is \"\\x01\\x01")) << cut;
  EXPECT_LT(cut.size(), 300U);
}

TEST(ToolAnswer, NamesAToolByItsFileWithoutFolderAndSuffix) {
  EXPECT_EQ(ToolName("zenx//arcconf.exe"), "arcconf");
  EXPECT_EQ(ToolName("C:\\tools\\hrconf_64.exe"), "hrconf_64");
  EXPECT_EQ(ToolName("qcmdrun"), "qcmdrun");
  EXPECT_EQ(ToolName(""), "");
  EXPECT_EQ(KnownTools(), (std::vector<std::string_view>{"qcmdrun", "hrconf_64", "arcconf"}));
}

TEST(ToolAnswer, FindsAnOutcomeByItsWord) {
  for (const Outcome outcome : {Outcome::kOk, Outcome::kRefused, Outcome::kEmpty, Outcome::kFailed, Outcome::kCutOff,
                                Outcome::kTimedOut, Outcome::kNotStarted}) {
    EXPECT_EQ(OutcomeOfWord(OutcomeWord(outcome)), outcome);
  }
  EXPECT_FALSE(OutcomeOfWord("OK").has_value());
}

}  // namespace
