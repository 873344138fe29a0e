#include "host/hxahost/machine/unguarded_arrays.h"

#include <string>

#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;

struct Disk {
  std::string controller;
  std::string channel;
  std::string id;
  std::string reported;
};

// Controller 1 of the legacy kind: array A is not guarded, B is. Controller 2: drive 1 is not guarded, drive 2 is.
bool LiesOnUnguarded(const Disk& disk) {
  FilledRepository all;
  all.Publish("KVRSG_zxLogicalDisk", {
                                         {"DeviceID",      "1LD1"},
                                         {"ControllerNum", "1"   },
                                         {"PartOfArray",   "A"   }
  });
  all.Publish("KVRSG_zxLogicalDisk", {
                                         {"DeviceID",      "2LD1"        },
                                         {"ControllerNum", "2"           },
                                         {"DriveList",     " 0,1 0,2\r\n"}
  });
  const hxahost::InstanceList unguarded = all.Instances();
  all.Publish("KVRSG_zxLogicalDisk", {
                                         {"DeviceID",      "1LD2"},
                                         {"ControllerNum", "1"   },
                                         {"PartOfArray",   "B"   }
  });
  all.Publish("KVRSG_zxLogicalDisk", {
                                         {"DeviceID",      "2LD2"    },
                                         {"ControllerNum", "2"       },
                                         {"DriveList",     "0,3 0,11"}
  });
  all.Publish("KVRSG_zxDiskGroup",
              {
                  {"CollectionID",  "1A"     },
                  {"Array",         "A"      },
                  {"ControllerNum", "1"      },
                  {"StripeOrder",   "1,0 1,1"}
  });
  all.Publish("KVRSG_zxDiskGroup",
              {
                  {"CollectionID",  "1B"  },
                  {"Array",         "B"   },
                  {"ControllerNum", "1"   },
                  {"StripeOrder",   "1,10"}
  });
  FilledRepository disks;
  disks.Publish("KVRSG_zxDiskDrive", {
                                         {"DeviceID",        "D"            },
                                         {"ControllerNum",   disk.controller},
                                         {"Channel",         disk.channel   },
                                         {"ScsiId",          disk.id        },
                                         {"ReportedChannel", disk.reported  }
  });
  return UnguardedArrays(unguarded, all.Instances()).Has(*disks.Instances().front());
}

TEST(UnguardedArrays, HaveTheDisksOfTheirStripeOrder) {
  EXPECT_TRUE(LiesOnUnguarded({"1", "1", "1", ""}));
  EXPECT_FALSE(LiesOnUnguarded({"1", "1", "10", ""}));
}

TEST(UnguardedArrays, HaveTheDisksOfTheirDriveList) {
  EXPECT_TRUE(LiesOnUnguarded({"2", "0", "1", ""}));
  EXPECT_FALSE(LiesOnUnguarded({"2", "0", "11", ""}));
}

TEST(UnguardedArrays, TakeAPlaceThatIsReportedAlone) {
  EXPECT_TRUE(LiesOnUnguarded({"2", "0", "", "0,2"}));
  EXPECT_FALSE(LiesOnUnguarded({"2", "0", "", "0,3"}));
}

TEST(UnguardedArrays, TakeADiskThatNoListNamesForOneOfTheirs) { EXPECT_TRUE(LiesOnUnguarded({"2", "0", "7", ""})); }

TEST(UnguardedArrays, HaveNoDiskOfAnotherController) { EXPECT_FALSE(LiesOnUnguarded({"3", "0", "1", ""})); }

}  // namespace
