#include "publish/publish_associations.h"

#include <gtest/gtest.h>

#include "publish/identifiers.h"
#include "tests/support/publishing.h"

namespace {

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";
constexpr const char* kDriveVersion = "KVRSG_zxDiskDriveVersion";
constexpr const char* kDeviceData = "KVRSG_zxSCSIDeviceData";
constexpr const char* kBadStripe = "KVRSG_BadStripeData";
constexpr const char* kAssociation = "Association";

std::string Reference(const std::string& className, std::size_t number) {
  return "reference " + className + ".Number=\"" + std::to_string(number) + "\"";
}

// An association between the instances with those numbers.
Properties Depends(const std::string& dependentClass, std::size_t dependent, const std::string& antecedentClass,
                   std::size_t antecedent) {
  return {"Dependent = " + Reference(dependentClass, dependent),
          "Antecedent = " + Reference(antecedentClass, antecedent)};
}

Properties Describes(const std::string& statsClass, std::size_t stats, const std::string& elementClass,
                     std::size_t element) {
  return {"Stats = " + Reference(statsClass, stats), "ManagedElement = " + Reference(elementClass, element)};
}

Instances Associations(Publishing& host, PublishRoutine routine) {
  host.Run(routine, kAssociation);
  EXPECT_EQ(host.log.entries, Entries{});
  return host.nameSpace.Published(kAssociation);
}

// The records to which a controller is linked, and the value that links them.
struct Belonging {
  PublishRoutine routine;
  const char* className;
  const char* property;
  std::string (*valueFor)(std::string_view controllerNumber);
};

std::string SameNumber(std::string_view number) { return std::string(number); }

constexpr Belonging kBelongings[] = {
    {PublishControllerToLogicalDisks, kLogicalDisk,               "ControllerNum",     SameNumber},
    {PublishControllerToDiskDrives,   kDiskDrive,                 "ControllerNum",     SameNumber},
    {PublishControllerToDiskGroups,   "KVRSG_zxDiskGroup",        "ControllerNum",     SameNumber},
    {PublishControllerToFirmware,     "KVRSG_zxFirmwareVersion",  "SoftwareElementID", SameNumber},
    {PublishControllerToBootBlock,    "KVRSG_zxBootBlockVersion", "SoftwareElementID", SameNumber},
    {PublishControllerToBios,         "KVRSG_zxBiosVersion",      "Name",              BiosName  },
};

TEST(PublishAssociations, LinkEachControllerToRecordsWithItsNumberInTheirOrder) {
  for (const auto& [routine, className, property, valueFor] : kBelongings) {
    Publishing host;
    for (const char* const number : {"2", "1", "3"}) host.AddController(number);
    for (const char* const number : {"1", "2"}) host.nameSpace.Add(kController, {"ControllerNum", number});
    for (const char* const number : {"1", "2", "1", "12", "3"}) {
      host.nameSpace.Add(className, {
                                        {property, valueFor(number)}
      });
    }
    // Controller 3 was not published (it failed), so no record is linked to it.
    EXPECT_EQ(Associations(host, routine),
              (Instances{Depends(className, 1, kController, 1), Depends(className, 0, kController, 0),
                         Depends(className, 2, kController, 0)}))
        << className;
  }
}

TEST(PublishAssociations, OfTwoControllersUnderOneNumberTheFirstIsLinked) {
  Publishing host;
  host.AddController("1");
  host.nameSpace.Add(kController, {"ControllerNum", "1"});
  host.nameSpace.Add(kController, {"ControllerNum", "1"});
  host.nameSpace.Add(kLogicalDisk, {"ControllerNum", "1"});
  EXPECT_EQ(Associations(host, PublishControllerToLogicalDisks), Instances{Depends(kLogicalDisk, 0, kController, 0)});
}

TEST(PublishAssociations, DiskDrivesOfAnyTypeAreLinkedToTheirController) {
  Publishing host;
  host.AddController("1");
  host.nameSpace.Add(kController, {"ControllerNum", "1"});
  for (const char* const type : {"Hard disk", "Tape", "", "Initiator"}) {
    host.nameSpace.Add(kDiskDrive, {"ControllerNum", "1", "DeviceType", type});
  }
  EXPECT_EQ(Associations(host, PublishControllerToDiskDrives).size(), 4U);
}

TEST(PublishAssociations, AnEndWithoutInstancesHasNoAssociationAndNoMessage) {
  for (const PublishRoutine routine :
       {PublishControllerToLogicalDisks, PublishControllerToDiskDrives, PublishControllerToDiskGroups,
        PublishControllerToFirmware, PublishControllerToBootBlock, PublishControllerToBios, PublishDiskDriveToFirmware,
        PublishDiskDriveToDeviceData, PublishLogicalDiskToBadStripes}) {
    Publishing nothing;
    EXPECT_EQ(Associations(nothing, routine), Instances{});
    Publishing controllersAlone;
    controllersAlone.AddController("1");
    controllersAlone.nameSpace.Add(kController, {"ControllerNum", "1"});
    EXPECT_EQ(Associations(controllersAlone, routine), Instances{});
  }
}

TEST(PublishAssociations, TheFirmwareOfADriveHangsOnItsIdentifierAndItsType) {
  constexpr std::pair<const char*, bool> kCases[] = {
      {"Hard disk",          true },
      {"a Hard drive",       true },
      {"Processor device",   true },
      {"Enclosure services", true },
      {"Unknown",            true },
      {"Tape",               false},
      {"Hard",               false},
      {"hard disk",          false},
      {"",                   false},
  };
  for (const auto& [type, isLinked] : kCases) {
    Publishing host;
    host.nameSpace.Add(kDiskDrive, {"ControllerNum", "1", "DeviceID", "C1 other", "DeviceType", type});
    host.nameSpace.Add(kDiskDrive, {"ControllerNum", "1", "DeviceID", "C1 CH0 I03:SN1", "DeviceType", type});
    host.nameSpace.Add(kDriveVersion, {"SoftwareElementID", "2-C1 CH0 I03:SN1"});
    host.nameSpace.Add(kDriveVersion, {"SoftwareElementID", "1-C1 CH0 I03:SN1"});
    EXPECT_EQ(Associations(host, PublishDiskDriveToFirmware),
              isLinked ? Instances{Depends(kDriveVersion, 1, kDiskDrive, 1)} : Instances{})
        << type;
  }
}

TEST(PublishAssociations, TheStatisticsOfADriveAreLinkedByControllerChannelTargetAndType) {
  constexpr std::pair<const char*, bool> kCases[] = {
      {"Hard disk",        true },
      {"a Hard drive",     true },
      {"Processor device", true },
      {"Tape",             true },
      {"Enclosure",        false},
      {"Unknown",          false},
      {"",                 false},
  };
  for (const auto& [type, isLinked] : kCases) {
    Publishing host;
    host.nameSpace.Add(kDiskDrive, {"ControllerNum", "1", "Channel", "0", "ScsiId", "3", "DeviceType", type});
    for (const char* const key : {"Zentraxis:1C0S4", "Zentraxis:1C0S3", "Zentraxis:2C0S3"}) {
      host.nameSpace.Add(kDeviceData, {"InstanceID", key});
    }
    EXPECT_EQ(Associations(host, PublishDiskDriveToDeviceData),
              isLinked ? Instances{Describes(kDeviceData, 1, kDiskDrive, 0)} : Instances{})
        << type;
  }
}

TEST(PublishAssociations, BadStripesAreFoundByTheTwoNumbersRunTogether) {
  Publishing host;
  for (const auto& [controller, drive] : {std::pair("1", "2"), std::pair("11", "2"), std::pair("1", "12")}) {
    host.nameSpace.Add(kLogicalDisk, {"ControllerNum", controller, "LogicalDriveNum", drive});
  }
  for (const auto& [controller, drive] : {std::pair("1", "12"), std::pair("1", "2"), std::pair("3", "1")}) {
    host.nameSpace.Add(kBadStripe, {"ControllerNum", controller, "LogicalDrive", drive});
  }
  EXPECT_EQ(Associations(host, PublishLogicalDiskToBadStripes),
            (Instances{Describes(kBadStripe, 1, kLogicalDisk, 0), Describes(kBadStripe, 0, kLogicalDisk, 1),
                       Describes(kBadStripe, 0, kLogicalDisk, 2)}));
}

TEST(PublishAssociations, EachDriveInOrderIsLinkedToAllRecordsWithItsKeyInOrder) {
  Publishing host;
  for (const char* const number : {"2", "1", "2"}) {
    host.nameSpace.Add(kDiskDrive, {"ControllerNum", number, "Channel", "0", "ScsiId", "3", "DeviceID", "ID",
                                    "DeviceType", "Hard disk"});
  }
  for (const char* const number : {"1", "2", "3", "2"}) {
    host.nameSpace.Add(kDriveVersion, {"SoftwareElementID", DriveSoftwareId(number, "ID")});
    host.nameSpace.Add(kDeviceData, {"InstanceID", DeviceDataId(number, "0", "3")});
  }
  const std::pair<std::size_t, std::size_t> links[] = {
      {1, 0},
      {3, 0},
      {0, 1},
      {1, 2},
      {3, 2}
  };
  Instances firmware;
  Instances statistics;
  for (const auto& [found, drive] : links) {
    firmware.push_back(Depends(kDriveVersion, found, kDiskDrive, drive));
    statistics.push_back(Describes(kDeviceData, found, kDiskDrive, drive));
  }
  EXPECT_EQ(Associations(host, PublishDiskDriveToFirmware), firmware);
  host.Run(PublishDiskDriveToDeviceData, "Other");
  EXPECT_EQ(host.nameSpace.Published("Other"), statistics);
}

}  // namespace
