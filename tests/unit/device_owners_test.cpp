#include "host/hxahost/machine/device_owners.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/support/filled_repository.h"

namespace {

using testing::ElementsAre;

// The labels of the instances' controllers.
std::vector<std::string> Labels(const FilledRepository& repository) {
  std::vector<std::string> labels;
  for (const auto& owner : hxahost::DeviceOwners(repository.Instances())) labels.push_back(owner.label);
  return labels;
}

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

TEST(DeviceOwners, AreOnlyNumbersIfEachBelongsToOneTool) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "1", "ReadAhead", "On");
  repository.Publish(kDiskDrive, "ControllerNum", "1", "ScsiId", "0");
  repository.Publish(kController, "ControllerNum", "2", "SerialNum", "8A");
  repository.Publish("KVRSG_zxRawData", "Command", "c");
  EXPECT_THAT(Labels(repository), ElementsAre("1", "1", "2", ""));
}

TEST(DeviceOwners, NameTheToolIfTwoShareANumber) {
  struct Case {
    const char* name;
    const char* className;
    std::pair<std::string, NKVRHXA20::TCIMValue> sign;
    const char* owner;
  };
  const Case cases[] = {
      {"a legacy controller",            kController,  {"ScsiChannelDescr", "2 channels"},  "3 (qcmdrun)"       },
      {"a controller with a battery",    kController,  {"SerialNum", "8A"},                 "3 (arcconf)"       },
      {"a controller with a status",     kController,  {"ControllerStatus", "Optimal"},     "3 (hrconf_64)"     },
      {"a drive of an array",            kLogicalDisk, {"PartOfArray", "A"},                "3 (qcmdrun)"       },
      {"a drive of segments",            kLogicalDisk, {"NumOfSegments", "3"},              "3 (arcconf)"       },
      {"a drive of chunks",              kLogicalDisk, {"NumOfChunks", "3"},                "3 (hrconf_64)"     },
      {"an array with a letter",         kDiskGroup,   {"Array", "A"},                      "3 (qcmdrun)"       },
      {"an array that nothing tells of", kDiskGroup,   {"StripeOrder", "0,1"},              "3 (tool not known)"},
      {"a disk in an enclosure",         kDiskDrive,   {"ReportedLocation", "Enclosure 0"}, "3 (arcconf)"       },
      {"a disk with a device number",    kDiskDrive,   {"DeviceNumber", "4"},               "3 (hrconf_64)"     },
      {"a disk with a device label",     kDiskDrive,   {"DeviceNumber", "Device #4"},       "3 (arcconf)"       },
      {"a disk with a place alone",      kDiskDrive,   {"ScsiId", "4"},                     "3 (qcmdrun)"       },
      {"a disk of nothing but blanks",   kDiskDrive,   {"ScsiId", " "},                     "3 (tool not known)"},
  };
  for (const Case& each : cases) {
    FilledRepository repository;
    repository.Publish(kController, "ControllerNum", "3", "ReadAhead", "On");
    repository.Publish(kController, "ControllerNum", "3", "ChannelDescription", "SAS");
    repository.Publish(each.className, {
                                           {"ControllerNum", " 3\r"},
                                           each.sign
    });
    EXPECT_EQ(Labels(repository).back(), each.owner) << each.name;
  }
}

TEST(DeviceOwners, FindTheToolOfAnArrayWithoutALetterByTheDisksOfItsDrive) {
  FilledRepository repository;
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "LogicalDriveNum", "1", "NumOfSegments", "2", "StripeOrder",
                     "(0,2) (0,3)");
  repository.Publish(kLogicalDisk, "ControllerNum", "3", "LogicalDriveNum", "1", "NumOfChunks", "2", "DriveList",
                     "0,4 0,5");
  repository.Publish(kDiskGroup, "ControllerNum", "3", "CollectionID", "ZentraxisCntrlr3LogicalDrv1 0,4 0,5",
                     "StripeOrder", "0,4  0,5\r\n");
  repository.Publish(kDiskGroup, "ControllerNum", "3", "CollectionID", "ZentraxisCntrlr3LogicalDrv1 0,2 0,3",
                     "StripeOrder", "0,2 0,3");
  repository.Publish(kDiskGroup, "ControllerNum", "3", "CollectionID", "ZentraxisCntrlr3LogicalDrv10 0,2 0,3",
                     "StripeOrder", "0,2 0,3");
  EXPECT_THAT(Labels(repository),
              ElementsAre("3 (arcconf)", "3 (hrconf_64)", "3 (hrconf_64)", "3 (arcconf)", "3 (tool not known)"));
}

TEST(DeviceOwners, AreNotSplitByAnAnswerThatIsCutOff) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "1", "ControllerType", "C6");
  repository.Publish(kLogicalDisk, "ControllerNum", "1", "PartOfArray", "A");
  repository.Publish(kDiskDrive, "ControllerNum", "1", "ScsiId", "0");
  EXPECT_THAT(Labels(repository), ElementsAre("1", "1", "1"));
}

TEST(DeviceOwners, AreEmptyForDevicesWithoutANumber) {
  FilledRepository repository;
  repository.Publish(kController, "ReadAhead", "On");
  repository.Publish(kController, "SerialNum", "8A");
  EXPECT_THAT(Labels(repository), ElementsAre("", ""));
}

}  // namespace
