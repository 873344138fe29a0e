#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/support/query_host.h"
#include "tests/support/raid_log_machine.h"
#include "tests/support/sample_answers.h"

namespace {

using testing::Each;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string SampleLog() {
  std::ifstream file(ZENX_SAMPLES "/machine/raid-manager/KVR/Zentraxis Manager/RaidEvtA.log", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(SampleMachine, ItsRaidManagerLogHasEveryFormOfTimeALineThatIsNoneAndOneThatIsTooLong) {
  ScriptedServices services;
  const RaidLogMachine machine(services, SampleLog());
  QueryHost host;
  host.Hold({});
  host.Query({"KVRSG_LogRecord_RAIDMgrEvent", "KVRSG_zxManagerRawData"});
  constexpr const char* kClass = "KVRSG_LogRecord_RAIDMgrEvent";
  EXPECT_THAT(
      host.Published(kClass, "MessageTimestamp"),
      testing::ElementsAre("20050614091205.000000-240", "20050614092041.000000-240", "20051102031742.000000-300",
                           "20051102031743.000000-300", "20051102031749.000000-300", "20051102120410.000000-300",
                           "20070305230203.000000+060", "20070306024755.000000+060", "20070306080001.000000-480",
                           "20070306080009.000000-480", "20070306080130.000000-480", "20070306091500.000000-480",
                           "20080521003000.000000-300", "20080521184512.000000-300"));
  EXPECT_THAT(host.Published(kClass, "MachineName"), Each("DBSERVER"));
  EXPECT_THAT(host.Published(kClass, "Severity"), Each(testing::AnyOf("INF", "WRN", "ERR")));
  // The line that is no event, and the rest of the long one.
  const LogEntry invalid = {1, "In RaidEvtA.log file, there has invalid line for zentraxis log, please check it."};
  EXPECT_THAT(host.log.entries, testing::ElementsAre(invalid, invalid));
  EXPECT_EQ(host.Published("KVRSG_zxManagerRawData").size(), 1U);
}

TEST(SampleMachine, NothingPublishedOfItsDevicesHasALineEnd) {
  ScriptedServices services;
  const SampleAnswers answers(services);
  QueryHost host;
  host.Query({"KVRSG_zxSCSIProtocolController", "KVRSG_zxLogicalDisk", "KVRSG_zxDiskGroup", "KVRSG_zxDiskDrive",
              "KVRSG_zxFirmwareVersion", "KVRSG_zxBootBlockVersion", "KVRSG_zxBiosVersion",
              "KVRSG_zxDiskDriveVersion"});
  EXPECT_THAT(host.PublishedClasses(), Not(IsEmpty()));
  for (const auto& instance : host.repository->Published()) {
    for (const auto& [name, value] : instance->Properties()) {
      const std::string text = value;
      EXPECT_THAT(text, Not(HasSubstr("\n"))) << instance->Class().name << "." << name;
      EXPECT_THAT(text, Not(HasSubstr("\r"))) << instance->Class().name << "." << name;
    }
  }
}

}  // namespace
