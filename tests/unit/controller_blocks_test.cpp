#include "host/hxahost/views/tables/controller_blocks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskGroup = "KVRSG_zxDiskGroup";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

std::string Blocks(const FilledRepository& repository, const std::vector<std::string>& askedFor = {kController},
                   bool isVerbose = false) {
  std::ostringstream out;
  QueryHeader header{"", "", {}, askedFor, 1};
  header.isVerbose = isVerbose;
  const QueryResult result{1, repository.Instances(), {}};
  WriteControllerBlocks(out, header, result.instances, BuildMachine(header, result));
  return out.str();
}

TEST(ControllerBlocks, ShowAControllerWithAllOfItsObjects) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "1", "ControllerType", "Zentraxis-6M", "ControllerStatus", "Okay",
                     "SerialNum", "8A1234", "ControllerSlotInfo", "3", "DefunctDiskDriveCnt", "1",
                     "ControllerBatteryStatus", "Charging");
  repository.Publish(kDiskDrive, "ControllerNum", "1", "Channel", "0", "ScsiId", "3", "DeviceType", "Hard disk", "PFA",
                     "No", "State", "Online", "Size", "34715 MB", "DeviceSerialNum", "3KR0123", "Firmware", "B26A",
                     "Model", "ST336607LC");
  repository.Publish(kDiskDrive, "ControllerNum", "1", "Channel", "0", "ScsiId", "4", "DeviceType", "Hard disk", "PFA",
                     "Yes", "State", "Defunct for a very, very long time", "Size", "34715 MB", "DeviceSerialNum",
                     "3KR0124", "Firmware", "B26A", "Model", "ST336607LC");
  repository.Publish(kLogicalDisk, "ControllerNum", "1", "LogicalDriveNum", "1", "LogicalDriveStatus", "Critical (CRT)",
                     "RaidLevel", "5", "Size", "69430 MB", "LogicalDriveName", "data");
  repository.Publish(kDiskGroup, "CollectionID", "Zentraxis1ArrayA", "Array", "A", "ControllerNum", "1", "StripeOrder",
                     "0,3 0,4");
  EXPECT_EQ(Blocks(repository), R"(
Controller 1: Zentraxis-6M - Okay
  serial 8A1234, slot 3
  defunct drives 1, battery Charging
  Logical drives
  Drive  Name  State     RAID  Size
  1      data  Critical  5     72.8 GB
  Disk groups
  Array  Stripe order  Identifier
  A      0,3 0,4       Zentraxis1ArrayA
  Disks
  Location         State                   Model       Serial   Size     Type  PFA  Firmware  Ch  ID
  channel 0, ID 3  Online                  ST336607LC  3KR0123  36.4 GB  HDD   No   B26A      0   3
  channel 0, ID 4  Defunct for a very, v…  ST336607LC  3KR0124  36.4 GB  HDD   Yes  B26A      0   4
)");
}

TEST(ControllerBlocks, ShowShortFormsOfStatesOnlyOnRequest) {
  FilledRepository repository;
  const auto publish = [&](const char* state, const char* cache) {
    repository.Publish(kLogicalDisk, "ControllerNum", "1", "LogicalDriveStatus", state, "WriteCacheStatus", cache);
  };
  publish("Critical (CRT)", "Write back (WB)");
  publish("Optimal (Initializing)", "Enabled (write-back)");
  publish("(OKY)", "WB)");
  EXPECT_THAT(Blocks(repository), testing::HasSubstr(R"(
  State                   Write cache
  Critical                Write back
  Optimal (Initializing)  Enabled (write-back)
  (OKY)                   WB)
)"));
  EXPECT_THAT(Blocks(repository, {kController}, true),
              testing::HasSubstr("  Critical (CRT)          Write back (WB)\n"));
}

// The smallest size decides the unit, so that figures can be compared; an unreadable size is shown as printed.
TEST(ControllerBlocks, ShowSizesInOneUnitForAColumn) {
  struct Case {
    const char* name;
    std::vector<const char*> sizes;
    const char* shown;
  };
  const Case cases[] = {
      {"small and large", {"34715/71096320", "2861588 MB"}, "  Size\n    36.4 GB\n  3000.6 GB\n"},
      {"large alone",     {"2861588 MB", "1907729 MB"},     "  Size\n  3.00 TB\n  2.00 TB\n"    },
      {"not readable",    {"36.4 lots", "34715/71096320"},  "  Size\n  36.4 lots\n    36.4 GB\n"},
  };
  for (const Case& each : cases) {
    FilledRepository repository;
    for (const char* const size : each.sizes) repository.Publish(kDiskDrive, "ControllerNum", "1", "Size", size);
    EXPECT_THAT(Blocks(repository), testing::HasSubstr(each.shown)) << each.name;
  }
}

TEST(ControllerBlocks, CallEachKindOfDeviceByOneShortWord) {
  FilledRepository repository;
  for (const char* const type : {"Hard drive", "Tape drive", "Enclosure services device", "Processor device"}) {
    repository.Publish(kDiskDrive, "ControllerNum", "1", "DeviceType", type);
  }
  EXPECT_THAT(Blocks(repository), testing::HasSubstr("  Type\n  HDD\n  tape\n  enclosure\n  Processor device\n"));
}

TEST(ControllerBlocks, ShowTheObjectsOfAControllerWithoutAnInstance) {
  FilledRepository repository;
  repository.Publish(kDiskDrive, "ControllerNum", "2", "Channel", "1");
  repository.Publish(kController, "ControllerNum", "1");
  EXPECT_EQ(Blocks(repository), R"(
Controller 1

Controller 2 was not published: its status may say "Failed"
  Disks
  Ch
  1
)");
  EXPECT_EQ(Blocks(repository, {kDiskDrive}).substr(14), R"(
Controller 2 (controllers were not asked for)
  Disks
  Ch
  1
)");
}

TEST(ControllerBlocks, ShowTwoInstancesOfOneNumber) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "1", "ControllerType", "A");
  repository.Publish(kController, "ControllerNum", "1", "ControllerType", "B");
  EXPECT_EQ(Blocks(repository), "\nController 1: A\nController 1: B\n");
}

TEST(ControllerBlocks, BreakTheFactsBetweenTwoOfThem) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "1", "ControllerName", std::string(60, 'n'), "SerialNum",
                     std::string(30, 's'), "ControllerSlotInfo", std::string(200, 'i'), "InstalledMemory", "128 MB");
  EXPECT_EQ(Blocks(repository), "\nController 1\n  name " + std::string(60, 'n') + ",\n  serial " +
                                    std::string(30, 's') + ",\n  slot " + std::string(91, 'i') +
                                    "\u2026,\n  memory 128 MB\n");
}

TEST(ControllerBlocks, NeverSendAControlCharacterToATerminal) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "\x1b[1m", "ControllerType", "\x1b[2m", "ControllerStatus", "\x07",
                     "SerialNum", "a\nb");
  repository.Publish(kDiskDrive, "ControllerNum", "\x1b[1m", "Model", "\x9b");
  EXPECT_EQ(Blocks(repository), R"(
Controller \x1b[1m: \x1b[2m - \x07
  serial a\nb
  Disks
  Model
  \x9b
)");
}

TEST(ControllerBlocks, AreTwoIfTwoToolsUseOneNumber) {
  FilledRepository repository;
  repository.Publish(kController, "ControllerNum", "3", "ReadAhead", "On", "ControllerType", "Legacy");
  repository.Publish(kController, "ControllerNum", "3", "ChannelDescription", "SAS", "ControllerStatus", "Optimal");
  repository.Publish(kDiskDrive, "ControllerNum", "3", "ScsiId", "1", "Model", "OLD");
  repository.Publish(kDiskDrive, "ControllerNum", "3", "DeviceNumber", "0", "Model", "NEW");
  const std::string blocks = Blocks(repository);
  const std::size_t legacy = blocks.find("\nController 3 (qcmdrun): Legacy\n");
  const std::size_t newer = blocks.find("\nController 3 (hrconf_64) - Optimal\n");
  ASSERT_NE(legacy, blocks.npos) << blocks;
  ASSERT_NE(newer, blocks.npos) << blocks;
  EXPECT_LT(blocks.find("OLD"), newer) << blocks;
  EXPECT_GT(blocks.find("NEW"), newer) << blocks;
}

}  // namespace
