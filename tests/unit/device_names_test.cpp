#include "host/hxahost/machine/device_names.h"

#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// The name of an instance of controller 1 with these properties: alternating names and values.
template <class... Properties>
std::string Name(const std::string& owner, const char* className, const Properties&... properties) {
  FilledRepository repository;
  repository.Publish(className, "ControllerNum", "1", properties...);
  return hxahost::NameOf(*repository.Instances().front(), owner);
}

template <class... Properties>
std::string Identifier(const char* className, const Properties&... properties) {
  FilledRepository repository;
  repository.Publish(className, properties...);
  return hxahost::IdentifierOf(*repository.Instances().front());
}

TEST(DeviceNames, AreNamesForPeople) {
  EXPECT_EQ(Name("", kController, "ControllerType", "Zentraxis C5"), "controller 1 (Zentraxis C5)");
  EXPECT_EQ(Name("", kController), "controller 1");
  EXPECT_EQ(Name("", kLogicalDisk, "LogicalDriveNum", "2", "LogicalDriveName", " Data "),
            "logical drive 2 (Data) of controller 1");
  EXPECT_EQ(Name("", kDiskDrive, "Channel", "0", "ScsiId", "8", "DeviceType", "Hard disk"),
            "Hard disk at channel 0, ID 8 of controller 1");
  EXPECT_EQ(Name("", kDiskDrive, "DeviceType", "Hard drive", "ReportedChannel", "0,2"),
            "Hard drive at channel,ID 0,2 of controller 1");
  EXPECT_EQ(Name("", kDiskDrive, "DeviceNumber", "Device #12"), "device at number 12 of controller 1");
  EXPECT_EQ(Name("", "KVRSG_BadStripeData", "LogicalDrive", "3"), "logical drive 3 of controller 1");
  EXPECT_EQ(Name("", "KVRSG_zxSCSIDeviceData", "Channel", "2", "ScsiId", "4"),
            "device at channel 2, ID 4 of controller 1");
  EXPECT_EQ(Name("", "KVRSG_zxDiskGroup"), "");
}

TEST(DeviceNames, DistinguishControllersWithOneNumber) {
  EXPECT_EQ(Name("3 (arcconf)", kController, "ControllerType", "C6"), "controller 3 (arcconf, C6)");
  EXPECT_EQ(Name("3 (arcconf)", kController), "controller 3 (arcconf)");
  EXPECT_EQ(Name("3 (arcconf)", kLogicalDisk, "LogicalDriveNum", "1"), "logical drive 1 of controller 3 (arcconf)");
}

TEST(DeviceNames, NameTheObjectOfTheIdentifier) {
  EXPECT_EQ(Identifier(kController, "DeviceID", "Zentraxis1"), "Zentraxis1");
  EXPECT_EQ(Identifier("KVRSG_BadStripeData", "InstanceID", "B"), "B");
  EXPECT_EQ(Identifier("KVRSG_zxRawData", "Command", "C"), "");
}

}  // namespace
