#include "host/hxahost/collection/collection_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/services.h"

namespace {

using namespace hxahost;
using namespace NKVRHXA20;

class CollectionServicesTest : public testing::Test {
 protected:
  CollectionServices Make(const CollectionOptions& options = {}, Progress* progress = nullptr) {
    return {RealServices(), options, log_, runs_, progress, nullptr};
  }

  QueryLog log_{{}};
  ToolRunList runs_;
};

TEST_F(CollectionServicesTest, AreReplacedByOptions) {
  CollectionOptions options;
  options.machineName = "OTHER";
  options.localTime = TCIMDateTime("20260305123015.250000+060");
  const CollectionServices services = Make(options);
  EXPECT_EQ(TOSSpecific::GetMachineName(), "OTHER");
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20260305123015.250000+060");
}

TEST_F(CollectionServicesTest, KeepTheLogWhileTheyLive) {
  {
    const CollectionServices services = Make();
    TRootObject::GetCoreLogger()->Log(100, "text");
  }
  TRootObject::GetCoreLogger()->Log(3, "afterwards");
  const auto entries = log_.Take();
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].level, 100);
  EXPECT_EQ(entries[0].text, "text");
}

TEST_F(CollectionServicesTest, UseNameAndClockOfTheSystemByDefault) {
  const CollectionServices services = Make();
  EXPECT_EQ(TOSSpecific::GetMachineName(), RealServices().machineName());
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString().substr(0, 8), RealServices().localTime().ToString().substr(0, 8));
}

TEST_F(CollectionServicesTest, KeepARunThatFailsAndShowItsCommandMeanwhile) {
  std::ostringstream terminal;
  {
    Progress progress(terminal);
    const CollectionServices services = Make({}, &progress);
    EXPECT_THROW(TOSSpecific::SpawnProcess("no//such.exe", {"getconfig", "1", "al"}, 300), THXAException);
  }
  EXPECT_THAT(terminal.str(), testing::StartsWith("\rno//such.exe getconfig 1 al (1 of about 48)\r"));
  ASSERT_EQ(runs_.size(), 1U);
  EXPECT_EQ(runs_[0].path, "no//such.exe");
  EXPECT_EQ(OutcomeWord(runs_[0].outcome), "not installed");
}

}  // namespace
