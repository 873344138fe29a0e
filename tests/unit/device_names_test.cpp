#include "host/hxahost/machine/device_names.h"

#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

using Properties = std::vector<std::pair<std::string, NKVRHXA20::TCIMValue>>;

struct Case {
  const char* description;
  const char* className;
  Properties properties;
  const char* identifier;
  const char* name;
};

TEST(DeviceNames, AreWhatPeopleCallTheDevices) {
  const Case cases[] = {
      {"controller with a model",
       "KVRSG_zxSCSIProtocolController",                        {{"DeviceID", "Zentraxis1"}, {"ControllerNum", "1"}, {"ControllerType", "Zentraxis C5"}},
       "Zentraxis1",                                                                                                                                                             "controller 1 (Zentraxis C5)"                 },
      {"controller without a model",
       "KVRSG_zxSCSIProtocolController",                        {{"DeviceID", "Zentraxis1"}, {"ControllerNum", "1"}},
       "Zentraxis1",                                                                                                                                                             "controller 1"                                },
      {"logical drive with a name",
       "KVRSG_zxLogicalDisk",                                   {{"DeviceID", "Zentraxis1LD2"},
        {"ControllerNum", "1"},
        {"LogicalDriveNum", "2"},
        {"LogicalDriveName", " Data "}},
       "Zentraxis1LD2",                                                                                                                                                          "logical drive 2 (Data) of controller 1"      },
      {"disk",
       "KVRSG_zxDiskDrive",                                     {{"DeviceID", "D"}, {"ControllerNum", "1"}, {"Channel", "0"}, {"ScsiId", "8"}, {"DeviceType", "Hard disk"}},
       "D",                                                                                                                                                                      "Hard disk at channel 0, ID 8 of controller 1"},
      {"disk whose place is reported whole",
       "KVRSG_zxDiskDrive",                                     {{"DeviceID", "D"}, {"ControllerNum", "1"}, {"DeviceType", "Hard drive"}, {"ReportedChannel", "0,2"}},
       "D",                                                                                                                                                                      "Hard drive at channel,ID 0,2 of controller 1"},
      {"device with a number alone",
       "KVRSG_zxDiskDrive",                                     {{"DeviceID", "D"}, {"ControllerNum", "1"}, {"DeviceNumber", "Device #12"}},
       "D",                                                                                                                                                                      "device at number 12 of controller 1"         },
      {"bad stripes",
       "KVRSG_BadStripeData",                                   {{"InstanceID", "B"}, {"ControllerNum", "1"}, {"LogicalDrive", "3"}},
       "B",                                                                                                                                                                      "logical drive 3 of controller 1"             },
      {"counters of a device",
       "KVRSG_zxSCSIDeviceData",                                {{"InstanceID", "S"}, {"ControllerNum", "1"}, {"Channel", "2"}, {"ScsiId", "4"}},
       "S",                                                                                                                                                                      "device at channel 2, ID 4 of controller 1"   },
      {"no device",                          "KVRSG_zxRawData", {{"Command", "C"}},                                                                                          "", ""                                            },
  };
  for (const Case& each : cases) {
    FilledRepository repository;
    repository.Publish(each.className, each.properties);
    const auto instance = repository.Instances().front();
    EXPECT_EQ(hxahost::IdentifierOf(*instance), each.identifier) << each.description;
    EXPECT_EQ(hxahost::NameOf(*instance, ""), each.name) << each.description;
  }
}

TEST(DeviceNames, SayWhatTellsTheControllerFromAnotherOfItsNumber) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxSCSIProtocolController", {
                                                           {"ControllerNum",  "3" },
                                                           {"ControllerType", "C6"}
  });
  repository.Publish("KVRSG_zxSCSIProtocolController", {
                                                           {"ControllerNum", "3"}
  });
  repository.Publish("KVRSG_zxLogicalDisk", {
                                                {"ControllerNum",   "3"},
                                                {"LogicalDriveNum", "1"}
  });
  const auto instances = repository.Instances();
  EXPECT_EQ(hxahost::NameOf(*instances[0], "3 (arcconf)"), "controller 3 (arcconf, C6)");
  EXPECT_EQ(hxahost::NameOf(*instances[1], "3 (arcconf)"), "controller 3 (arcconf)");
  EXPECT_EQ(hxahost::NameOf(*instances[2], "3 (arcconf)"), "logical drive 1 of controller 3 (arcconf)");
}

}  // namespace
