#include "host/hxahost/collection/collection_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/services.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

TEST(CollectionServices, GiveWhatTheOptionsReplace) {
  CollectionOptions options;
  options.machineName = "OTHER";
  options.localTime = TCIMDateTime("20260305123015.250000+060");
  QueryLog log({});
  ToolRunList runs;
  const CollectionServices services(RealServices(), options, log, runs, nullptr, nullptr);
  EXPECT_EQ(TOSSpecific::GetMachineName(), "OTHER");
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20260305123015.250000+060");
}

TEST(CollectionServices, KeepTheLogWhileTheyLive) {
  QueryLog log({});
  {
    ToolRunList runs;
    const CollectionServices services(RealServices(), {}, log, runs, nullptr, nullptr);
    TRootObject::GetCoreLogger()->Log(100, "text");
  }
  TRootObject::GetCoreLogger()->Log(3, "afterwards");
  const auto entries = log.Take();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].level, 100);
  EXPECT_EQ(entries[0].text, "text");
}

TEST(CollectionServices, LeaveNameAndClockOfTheSystemWhereNothingReplacesThem) {
  QueryLog log({});
  ToolRunList runs;
  const CollectionServices services(RealServices(), {}, log, runs, nullptr, nullptr);
  EXPECT_EQ(TOSSpecific::GetMachineName(), RealServices().machineName());
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString().substr(0, 8), RealServices().localTime().ToString().substr(0, 8));
}

TEST(CollectionServices, ShowTheCommandThatRunsAlsoWhenItFails) {
  std::ostringstream terminal;
  QueryLog log({});
  {
    Progress progress(terminal);
    ToolRunList runs;
    const CollectionServices services(RealServices(), {}, log, runs, &progress, nullptr);
    EXPECT_THROW(TOSSpecific::SpawnProcess("no//such.exe", {"getconfig", "1", "al"}, 300), THXAException);
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\rno//such.exe getconfig 1 al\r"));
}

TEST(CollectionServices, KeepTheRunsOfTools) {
  QueryLog log({});
  ToolRunList runs;
  const CollectionServices services(RealServices(), {}, log, runs, nullptr, nullptr);
  EXPECT_THROW(CurrentServices().spawn("no//such.exe", {"getconfig", "1"}, 300), THXAException);
  ASSERT_EQ(runs.size(), 1U);
  EXPECT_EQ(runs[0].path, "no//such.exe");
  EXPECT_EQ(OutcomeWord(runs[0].outcome), "not started");
}

}  // namespace
