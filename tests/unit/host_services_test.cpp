#include "host/hxacore/host_services.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "plugin/host_interface/exception.h"
#include "plugin/host_interface/services.h"
#include "tests/support/scripted_services.h"
#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;
using testing::ElementsAre;

TEST(HostServices, AreCalledByTheHostsOperations) {
  ScriptedServices services;
  services.answers["tool getconfig 1"] = "answer";
  services.files["log"] = "contents";
  EXPECT_EQ(TOSSpecific::SpawnProcess("zenx//tool.exe", {"getconfig", "1"}, 300), "answer");
  EXPECT_EQ(TOSSpecific::CaptureFile("log"), "contents");
  EXPECT_EQ(TOSSpecific::GetMachineName(), "MACHINE");
  EXPECT_EQ(TOSSpecific::GetLocalTime().ToString(), "20260305123015.250000+060");
  TRootObject::GetCoreLogger()->Log(2, "text");
  EXPECT_THAT(services.log, ElementsAre(LogEntry{2, "text"}));
}

TEST(HostServices, TheLimitReachesTheServiceInSeconds) {
  HostServices services = RealServices();
  int limit = 0;
  services.spawn = [&](const std::string&, const std::vector<std::string>&, int limitSeconds) {
    limit = limitSeconds;
    return std::string();
  };
  SetServices(services);
  TOSSpecific::SpawnProcess("tool", {}, 300);
  SetServices(RealServices());
  EXPECT_EQ(limit, 300);
}

TEST(HostServices, AreTheRealOnesAgainAfterwards) {
  { ScriptedServices services; }
  const std::string program = (ProgramFolder() / "test_child.exe").string();
  EXPECT_EQ(TOSSpecific::SpawnProcess(program, {"exit", "0"}, 60), "done\n");
  EXPECT_FALSE(TOSSpecific::GetMachineName().empty());
  EXPECT_EQ(TCIMDateTime(TOSSpecific::GetLocalTime().ToString()).ToString().substr(0, 2), "20");
  TRootObject::GetCoreLogger()->Log(3, "goes nowhere");
}

TEST(HostServices, ALoggerThatAPlugInKeepsFollowsTheServices) {
  ILogger* const logger = TRootObject::GetCoreLogger();
  ScriptedServices services;
  logger->Log(3, "kept");
  EXPECT_THAT(services.LogTexts(), ElementsAre("kept"));
}

}  // namespace
