#include "host/hxahost/terminal/progress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace hxahost;
using testing::HasSubstr;

TEST(Progress, ShowsEachCommandOverTheOneBeforeAndErasesTheLast) {
  std::ostringstream terminal;
  {
    Progress progress(terminal);
    progress.Begin("a long command");
    progress.End();
    progress.Begin("short");
    progress.End();
  }
  EXPECT_EQ(terminal.str(),
            "\ra long command"
            "\rshort         "
            "\r     \r");
}

TEST(Progress, CountsTheSecondsOfALongCommand) {
  std::ostringstream terminal;
  {
    Progress progress(terminal);
    progress.Begin("tool");
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
  }
  EXPECT_THAT(terminal.str(), HasSubstr("\rtool 1 s"));
  EXPECT_TRUE(terminal.str().ends_with("\r        \r")) << "erased";
}

TEST(Progress, ShowsTheNumberOfTheCommandAndTheTotal) {
  std::ostringstream terminal;
  {
    Progress progress(terminal, 80);
    progress.Begin("first", 48);
    progress.Begin("second", 63);
    progress.Begin("third", 2);
  }
  EXPECT_THAT(terminal.str(), HasSubstr("\rfirst (1 of about 48)\rsecond (2 of about 63)\rthird (3 of about 3) "));
}

TEST(Progress, LeavesRoomInANarrowTerminal) {
  std::ostringstream terminal;
  {
    Progress progress(terminal, 40);
    progress.Begin(std::string(200, 'x'), 240);
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\r" + std::string(12, 'x') + "\u2026 (1 of about 240)\r"));
}

TEST(Progress, KeepsToOneLineWithoutControlCharacters) {
  std::ostringstream terminal;
  {
    Progress progress(terminal);
    progress.Begin("\x1b[2J" + std::string(200, 'x'));
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\r\\x1b[2J" + std::string(62, 'x') + "\u2026\r"));
}

TEST(Progress, ShowsNothingWhenNothingRuns) {
  std::ostringstream terminal;
  { const Progress progress(terminal); }
  EXPECT_EQ(terminal.str(), "");
}

TEST(Progress, IsOutOfTheWayBeforeOthersWrite) {
  std::ostringstream terminal;
  Progress progress(terminal);
  progress.Begin("tool");
  progress.End();
  progress.Clear();
  EXPECT_EQ(terminal.str(), "\rtool\r    \r");
  progress.Clear();
  EXPECT_EQ(terminal.str(), "\rtool\r    \r") << "there was nothing left to erase";
}

}  // namespace
