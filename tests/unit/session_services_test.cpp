#include "host/hxahost/collection/session_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/services.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

TEST(SessionServices, GiveWhatTheOptionsReplace) {
  QueryOptions options;
  options.machineName = "OTHER";
  options.localTime = TCIMDateTime("20260305123015.250000+060");
  QueryLog log({});
  ToolRunList runs;
  SessionTape tape;
  const SessionServices services(options, log, runs, nullptr, tape);
  EXPECT_EQ(TOSSpecific::GetMachineName(), "OTHER");
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20260305123015.250000+060");
}

TEST(SessionServices, KeepTheLogWhileTheyLive) {
  QueryLog log({});
  {
    ToolRunList runs;
    SessionTape tape;
    const SessionServices services({}, log, runs, nullptr, tape);
    TRootObject::GetCoreLogger()->Log(100, "text");
  }
  TRootObject::GetCoreLogger()->Log(3, "afterwards");
  const auto entries = log.Take();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].level, 100);
  EXPECT_EQ(entries[0].text, "text");
}

TEST(SessionServices, LeaveNameAndClockOfTheSystemWhereNothingReplacesThem) {
  QueryLog log({});
  ToolRunList runs;
  SessionTape tape;
  const SessionServices services({}, log, runs, nullptr, tape);
  EXPECT_EQ(TOSSpecific::GetMachineName(), RealServices().machineName());
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString().substr(0, 8), RealServices().localTime().ToString().substr(0, 8));
}

TEST(SessionServices, ShowTheCommandThatRunsAlsoWhenItFails) {
  std::ostringstream terminal;
  QueryLog log({});
  {
    Progress progress(terminal);
    ToolRunList runs;
    SessionTape tape;
    const SessionServices services({}, log, runs, &progress, tape);
    EXPECT_THROW(TOSSpecific::SpawnProcess("no//such.exe", {"getconfig", "1", "al"}, 300), THXAException);
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\rno//such.exe getconfig 1 al\r"));
}

TEST(SessionServices, KeepTheRunsOfTools) {
  QueryLog log({});
  ToolRunList runs;
  SessionTape tape;
  const SessionServices services({}, log, runs, nullptr, tape);
  EXPECT_THROW(CurrentServices().spawn("no//such.exe", {"getconfig", "1"}, 300), THXAException);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_EQ(runs[0].path, "no//such.exe");
  EXPECT_EQ(OutcomeWord(runs[0].outcome), "not started");
}

}  // namespace
