#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "logs/event_records.h"
#include "logs/statistics_records.h"
#include "tests/support/one_of_everything.h"
#include "tests/support/query_host.h"
#include "tests/support/raid_log_machine.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Names = std::vector<std::string>;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kBadStripe = "KVRSG_BadStripeData";
constexpr const char* kFirmware = "KVRSG_zxFirmwareVersion";

constexpr const char* kAssociations[] = {
    "KVRSG_zxProtocolControllerForUnit", "KVRSG_zxProtocolControllerForPhysicalDisk",
    "KVRSG_zxStripeOrderForController",  "KVRSG_zxFirmwareOnController",
    "KVRSG_zxBootBlockOnController",     "KVRSG_zxFirmwareOnDiskDrive",
    "KVRSG_zxBiosOnController",          "KVRSG_ElementZxScsiDeviceData",
    "KVRSG_ElementBadStripeData",
};

// A machine with one of everything on controllers 1 and 2.
struct Machine {
  Machine() { host.Hold(controllers); }

  ZenxController& First() { return *controllers.front(); }

  ScriptedServices services;
  QueryHost host;
  ControllerList controllers{ControllerWithEverything(&host.log, "1"), ControllerWithEverything(&host.log, "2")};
};

TEST(Publication, AFailedControllerIsLeftOutAndItsDisksGroupsAndDrivesAreNot) {
  Machine machine;
  machine.First().ControllerStatus = " The controller has Failed.\r\n";
  machine.host.Query({kController, kLogicalDisk, kDiskGroup, kDiskDrive});
  EXPECT_THAT(machine.host.Published(kController, "ControllerNum"), ElementsAre("2"));
  for (const char* const name : {kLogicalDisk, kDiskGroup, kDiskDrive}) {
    EXPECT_THAT(machine.host.Published(name, "ControllerNum"), ElementsAre("1", "2")) << name;
  }
  EXPECT_THAT(machine.host.log.entries, IsEmpty());
}

TEST(Publication, AnAssociationAloneFindsNothingToLink) {
  for (const char* const association : kAssociations) {
    Machine machine;
    machine.host.Query({association});
    EXPECT_THAT(machine.host.PublishedClasses(), IsEmpty()) << association;
    EXPECT_THAT(machine.host.log.entries, IsEmpty()) << association;
  }
}

TEST(Publication, AnAssociationLinksWhatAnEarlierQueryPublished) {
  Machine machine;
  machine.host.Query({kController, kLogicalDisk});
  machine.host.Query({"KVRSG_zxProtocolControllerForUnit"});
  EXPECT_THAT(machine.host.PublishedClasses(), SizeIs(2));
  // Naming an end again takes its instances away until they are published anew, which is behind the association here.
  machine.host.Query({"KVRSG_zxProtocolControllerForUnit", kLogicalDisk});
  EXPECT_THAT(machine.host.PublishedClasses(), ElementsAre(kLogicalDisk, kLogicalDisk));
  machine.host.Query({kLogicalDisk, "KVRSG_zxProtocolControllerForUnit"});
  EXPECT_THAT(machine.host.PublishedClasses(), SizeIs(4));
}

TEST(Publication, AnAssociationNamesItsEndsByTheirKeys) {
  Machine machine;
  machine.host.Query({kController, kLogicalDisk, "KVRSG_zxProtocolControllerForUnit"});
  EXPECT_EQ(machine.host.Published("KVRSG_zxProtocolControllerForUnit").at(1),
            (Names{"Dependent = reference KVRSG_zxLogicalDisk.CreationClassName=\"KVRSG_zxLogicalDisk\",DeviceID="
                   "\"Zentraxis2LD1\"",
                   "Antecedent = reference KVRSG_zxSCSIProtocolController.CreationClassName="
                   "\"KVRSG_zxSCSIProtocolController\",DeviceID=\"Zentraxis2\""}));
}

TEST(Publication, AControllerWithoutFirmwareTextGetsNoFirmwareInstanceAndNoAssociation) {
  Machine machine;
  machine.First().FirmwareVersion = "\r\n";
  machine.host.Query({kController, kFirmware, "KVRSG_zxFirmwareOnController"});
  EXPECT_THAT(machine.host.Published(kFirmware, "SoftwareElementID"), ElementsAre("2"));
  const auto links = machine.host.Published("KVRSG_zxFirmwareOnController", "Antecedent");
  ASSERT_THAT(links, SizeIs(1));
  EXPECT_THAT(links[0], testing::HasSubstr("DeviceID=\"Zentraxis2\""));
}

TEST(Publication, AControllerWithoutBadStripesAndTwoLogicalDisksGets0ForBoth) {
  Machine machine;
  machine.First().BadStripes.clear();
  const auto second = std::make_shared<ZenxLogicalDevice>(&machine.host.log);
  second->LogicalDriveNum = " 2\r\n";
  machine.First().LogicalDevices.push_back(second);
  machine.host.Query({kLogicalDisk, kBadStripe});
  EXPECT_THAT(machine.host.Published(kBadStripe, "InstanceID"),
              ElementsAre("Zentraxis:1LD1", "Zentraxis:1LD2", "Zentraxis:2LD1"));
  EXPECT_THAT(machine.host.Published(kBadStripe, "NumBadStripes"), ElementsAre("0", "0", "0"));
  EXPECT_THAT(machine.host.log.entries, IsEmpty());
}

TEST(Publication, BadStripesOfControllersThatListNoneNeedTheLogicalDisksInTheHost) {
  Machine machine;
  machine.First().BadStripes.clear();
  machine.host.Query({kBadStripe});
  EXPECT_THAT(machine.host.Published(kBadStripe, "InstanceID"), ElementsAre("Zentraxis:2LD1"));
}

TEST(Publication, BadStripesAreToldOnceAtLevel100) {
  Machine machine;
  for (const auto& controller : machine.controllers) controller->BadStripes.front()->NumBadStripes = "3";
  machine.host.Query({kBadStripe});
  EXPECT_THAT(machine.host.log.entries,
              ElementsAre(LogEntry{100, "There exist bad stripes in Logical Drive of Zentraxis."}));
}

TEST(Publication, AHardEventLogIsPublishedUnderTheNameOfSoftEvents) {
  Machine machine;
  machine.host.Query({"KVRSG_LogRecord_HardEvent"});
  for (const char* const property : {"CreationClassName", "LogCreationClassName", "LogName"}) {
    EXPECT_THAT(machine.host.Published("KVRSG_LogRecord_HardEvent", property),
                ElementsAre("KVRSG_LogRecord_SoftEvent", "KVRSG_LogRecord_SoftEvent"))
        << property;
  }
}

TEST(Publication, TheReasonsForEmptyRawDataAreLogged) {
  const RaidLogSetting none(std::nullopt);
  Machine machine;
  machine.host.Query({"KVRSG_zxManagerRawData", "KVRSG_zxRawData"});
  EXPECT_THAT(machine.host.log.entries, ElementsAre(LogEntry{3, "RaidMgrLog does not exist: inside ZxPlugin"},
                                                    LogEntry{3, "ZenxRawDataVector is empty: inside ZxPlugin"}));
  EXPECT_THAT(machine.host.PublishedClasses(), IsEmpty());
}

// The associations of a machine that size, published into a host.
std::size_t LinksOf(std::size_t drives) {
  const ScriptedServices services;
  QueryHost host;
  const auto controller = ControllerWithEverything(&host.log, "1");
  for (std::size_t number = 1; number < drives; ++number) {
    const auto drive = std::make_shared<ZenxPhysicalDevice>(*controller->PhysicalDevices.front());
    drive->ScsiId = std::to_string(number + 3);
    controller->PhysicalDevices.push_back(drive);
    const auto device = std::make_shared<ZenxEventData>(*controller->DeviceEvents.front());
    device->ScsiId = drive->ScsiId;
    controller->DeviceEvents.push_back(device);
  }
  host.Hold({controller});
  host.Query({kDiskDrive, "KVRSG_zxDiskDriveVersion", "KVRSG_zxSCSIDeviceData", "KVRSG_zxFirmwareOnDiskDrive",
              "KVRSG_ElementZxScsiDeviceData"});
  return host.Published("KVRSG_zxFirmwareOnDiskDrive").size() + host.Published("KVRSG_ElementZxScsiDeviceData").size();
}

TEST(Publication, LinksEveryDriveOfALargeMachineToItsOwnFirmwareAndStatistics) { EXPECT_EQ(LinksOf(500), 1000U); }

}  // namespace
