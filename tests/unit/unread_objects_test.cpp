#include "host/hxahost/machine/unread_objects.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/machine/health.h"
#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kArcconf = "zenx//arcconf.exe getconfig 1 al";
constexpr const char* kQcmdrun = "zenx//qcmdrun.exe getconfig 1 al";

using Lines = std::vector<std::string>;

class UnreadObjectsTest : public testing::Test {
 protected:
  void Publish(const std::string& className, const std::string& controller) {
    repository_.Publish(className, "ControllerNum", controller);
  }
  void Answer(const std::string& command, Lines lines) {
    lines.insert(lines.begin(), "Controller information");
    repository_.Publish("KVRSG_zxRawData", "Command", command, "RawResults", Texts(lines));
  }
  Lines Found(const std::string& notAsked = "") const {
    QueryHeader header;
    for (const std::string_view each : HealthClasses()) {
      if (each != notAsked) header.classes.emplace_back(each);
    }
    Machine machine;
    machine.controllers = ReadControllers(repository_.Instances());
    Lines found;
    for (const Finding& finding : UnreadObjects(machine, header, repository_.Instances())) {
      EXPECT_EQ(finding.severity, Severity::kUnknown);
      found.push_back(finding.name + ": " + finding.text);
    }
    return found;
  }

  FilledRepository repository_;
};

TEST_F(UnreadObjectsTest, AreNoneWhereEachIsPublished) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Publish("KVRSG_zxLogicalDisk", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kArcconf,
         {"Logical drive number 1", "   Logical drive name : Device #7", "   Status of logical drive : Optimal",
          "      Device #0", "         Device is a Hard drive", "      Device #1", "         Device is a Tape"});
  EXPECT_THAT(Found(), IsEmpty());
}

TEST_F(UnreadObjectsTest, AreCountedByTheirHeads) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kArcconf, {"Device #0", "Device #1", "State : Failed", "Device #2"});
  EXPECT_THAT(Found(), ElementsAre("controller 1: 2 of 3 devices not read"));
}

TEST_F(UnreadObjectsTest, AreCountedByTheirFirstLinesWhereTheHeadIsMissing) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Publish("KVRSG_zxLogicalDisk", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kQcmdrun, {"Logical drive number 1", "Status of logical drive : Okay", "Status of logical drive : Offline",
                    "Target on SCSI ID 0", "Device is a Hard disk", "Device is a Hard disk"});
  EXPECT_THAT(Found(), ElementsAre("controller 1: 1 of 2 logical drives not read, 1 of 2 devices not read"));
}

TEST_F(UnreadObjectsTest, AreComparedForEachControllerAlone) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Publish("KVRSG_zxSCSIProtocolController", "2");
  Publish("KVRSG_zxDiskDrive", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kQcmdrun, {"Target on SCSI ID 0", "Target on SCSI ID 1"});
  Answer(kArcconf, {"Device #0"});
  EXPECT_THAT(Found(), ElementsAre("controller 2: 1 of 1 devices not read"));
}

TEST_F(UnreadObjectsTest, AreFoundWhereTheirControllerIsNotPublished) {
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kArcconf, {"Device #0", "Device #1"});
  EXPECT_THAT(Found(), ElementsAre("controller 1: 1 of 2 devices not read"));
}

// Their lines are not published.
TEST_F(UnreadObjectsTest, MayBeInAReportWithoutCarriageReturns) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  repository_.Publish("KVRSG_zxRawData", "Command", kArcconf, "RawResults", Texts({}));
  EXPECT_THAT(Found(), ElementsAre("controller 1: its report has no carriage returns"));
}

TEST_F(UnreadObjectsTest, AreCountedOnLinesThatEndInALineFeedAlone) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Publish("KVRSG_zxDiskDrive", "1");
  Answer(kArcconf, {"Device #0\nState : Online\nDevice #1", "State : Failed"});
  EXPECT_THAT(Found(), ElementsAre("controller 1: 1 of 2 devices not read"));
}

TEST_F(UnreadObjectsTest, AreNotSoughtInOtherAnswersAndClassesThatWereNotAskedFor) {
  Publish("KVRSG_zxSCSIProtocolController", "1");
  Answer("zenx//arcconf.exe getlogs 1 device", {"Device #0"});
  EXPECT_THAT(Found(), IsEmpty());
  Answer(kArcconf, {"Device #0"});
  EXPECT_THAT(Found(), ElementsAre("controller 1: 1 of 1 devices not read"));
  EXPECT_THAT(Found("KVRSG_zxDiskDrive"), IsEmpty());
  EXPECT_THAT(Found("KVRSG_zxRawData"), IsEmpty());
}

}  // namespace
