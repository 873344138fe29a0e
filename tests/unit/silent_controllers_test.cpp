#include "host/hxahost/machine/silent_controllers.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

class SilentControllersTest : public testing::Test {
 protected:
  void Drive(const std::string& className, const std::string& controller) {
    repository_.Publish(className, "ControllerNum", controller);
  }
  void Answer(const std::string& command, const std::vector<std::string>& lines) {
    repository_.Publish("KVRSG_zxRawData", "Command", command, "RawResults", Texts(lines));
  }
  std::vector<std::string> Found() const {
    std::vector<std::string> found;
    for (const Finding& finding :
         SilentControllers(BuildMachine({}, {2, repository_.Instances(), {}}), repository_.Instances())) {
      found.push_back(finding.identifier + " \"" + finding.text + "\"");
      EXPECT_EQ(finding.severity, Severity::kCritical);
    }
    return found;
  }

  FilledRepository repository_;
};

TEST_F(SilentControllersTest, AreNoneWhereEachIsPublished) {
  Drive("KVRSG_zxSCSIProtocolController", "1");
  Drive("KVRSG_zxLogicalDisk", "1");
  Answer("zenx//arcconf.exe getconfig 1 al", {"   Controller Status    : Optimal", "Failed"});
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(SilentControllersTest, AreNamedOnceByDrivesDisksAndGroups) {
  Drive("KVRSG_zxSCSIProtocolController", "1");
  Drive("KVRSG_zxLogicalDisk", "2");
  Drive("KVRSG_zxLogicalDisk", "2");
  Drive("KVRSG_zxDiskDrive", "10");
  Drive("KVRSG_zxDiskGroup", "4");
  EXPECT_THAT(Found(), ElementsAre("Zentraxis2 \"\"", "Zentraxis4 \"\"", "Zentraxis10 \"\""));
}

TEST_F(SilentControllersTest, ShowTheStatusThatTheUtilityPrinted) {
  Drive("KVRSG_zxDiskDrive", "2");
  Answer("zenx//arcconf.exe getconfig 1 al",
         {"Controllers found: 1", "   Controller Status    : Failed - dead  ", "x"});
  EXPECT_THAT(Found(), ElementsAre("Zentraxis2 \"Failed - dead\""));
}

TEST_F(SilentControllersTest, AreFoundWithoutADriveThatNamesThem) {
  Answer("zenx//arcconf.exe getconfig 1 al", {"   Controller Status    : Failed"});
  EXPECT_THAT(Found(), ElementsAre("zenx//arcconf.exe getconfig 1 al \"Failed\""));
}

TEST_F(SilentControllersTest, AreNotReadFromOtherAnswers) {
  Answer("zenx//arcconf.exe getlogs 1 event", {"   Controller Status    : Failed"});
  Answer("zenx//arcconf.exe getconfig 1 al", {"   Controller Status", "   Controller Status : ", "Status : Failed"});
  EXPECT_THAT(Found(), IsEmpty());
}

}  // namespace
