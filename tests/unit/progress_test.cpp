#include "host/hxahost/terminal/progress.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <condition_variable>
#include <mutex>
#include <sstream>
#include <string>

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

// What was flushed can be waited for: the progress writes from its own thread.
class WatchedText : public std::stringbuf {
 public:
  bool Shows(std::string_view text) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, std::chrono::minutes(1), [&] { return flushed_.find(text) != std::string::npos; });
  }

 private:
  int sync() override {
    const std::lock_guard lock(mutex_);
    flushed_ = str();
    changed_.notify_one();
    return 0;
  }

  std::mutex mutex_;  // guards flushed_
  std::condition_variable changed_;
  std::string flushed_;
};

TEST(Progress, CountsTheSecondsOfALongCommand) {
  WatchedText text;
  {
    std::ostream terminal(&text);
    Progress progress(terminal);
    progress.Begin("tool");
    EXPECT_TRUE(text.Shows(" s"));
  }
  EXPECT_THAT(text.str(), testing::StartsWith("\rtool\rtool "));
  EXPECT_THAT(text.str(), testing::Not(HasSubstr("tool 0 s")));
  EXPECT_THAT(text.str(), testing::EndsWith("\r        \r")) << "erased";
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
