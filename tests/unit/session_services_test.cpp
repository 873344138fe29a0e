#include "host/hxahost/session_services.h"

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
  const SessionServices services(options, log, nullptr);
  EXPECT_EQ(TOSSpecific::GetMachineName(), "OTHER");
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20260305123015.250000+060");
}

TEST(SessionServices, KeepTheLogWhileTheyLive) {
  QueryLog log({});
  {
    const SessionServices services({}, log, nullptr);
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
  const SessionServices services({}, log, nullptr);
  EXPECT_EQ(TOSSpecific::GetMachineName(), RealServices().machineName());
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString().substr(0, 8), RealServices().localTime().ToString().substr(0, 8));
}

TEST(SessionServices, ShowTheCommandThatRunsAlsoWhenItFails) {
  std::ostringstream terminal;
  QueryLog log({});
  {
    Progress progress(terminal);
    const SessionServices services({}, log, &progress);
    EXPECT_THROW(TOSSpecific::SpawnProcess("no//such.exe", {"getconfig", "1", "al"}, 300), THXAException);
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\rno//such.exe getconfig 1 al\r"));
}

}  // namespace
