#include "publish/publish_associations.h"

#include <gtest/gtest.h>

#include <random>

#include "publish/identifiers.h"
#include "tests/support/publishing.h"

namespace {

using Properties = std::vector<std::string>;
using Instances = std::vector<Properties>;

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
  EXPECT_EQ(host.log.entries, std::vector<LogEntry>{});
  return host.nameSpace.Published(kAssociation);
}

// What a controller is linked to, and by which value.
struct Belonging {
  PublishRoutine routine;
  const char* className;
  const char* property;
  std::string (*valueFor)(std::string_view controllerNumber);
};

std::string TheNumber(std::string_view number) { return std::string(number); }

constexpr Belonging kBelongings[] = {
    {PublishControllerToLogicalDisks, kLogicalDisk,               "ControllerNum",     TheNumber},
    {PublishControllerToDiskDrives,   kDiskDrive,                 "ControllerNum",     TheNumber},
    {PublishControllerToDiskGroups,   "KVRSG_zxDiskGroup",        "ControllerNum",     TheNumber},
    {PublishControllerToFirmware,     "KVRSG_zxFirmwareVersion",  "SoftwareElementID", TheNumber},
    {PublishControllerToBootBlock,    "KVRSG_zxBootBlockVersion", "SoftwareElementID", TheNumber},
    {PublishControllerToBios,         "KVRSG_zxBiosVersion",      "Name",              BiosName },
};

TEST(PublishAssociations, LinkEachControllerToWhatCarriesItsNumberInTheOrderOfTheRecords) {
  for (const auto& [routine, className, property, valueFor] : kBelongings) {
    Publishing host;
    for (const char* const number : {"2", "1", "3"}) host.AddController(number);
    for (const char* const number : {"1", "2"})
      host.nameSpace.Add(kController, {
                                          {"ControllerNum", number}
      });
    for (const char* const number : {"1", "2", "1", "12", "3"}) {
      host.nameSpace.Add(className, {
                                        {property, valueFor(number)}
      });
    }
    // Controller 3 was not published (it failed), so that nothing is linked to it.
    EXPECT_EQ(Associations(host, routine),
              (Instances{Depends(className, 1, kController, 1), Depends(className, 0, kController, 0),
                         Depends(className, 2, kController, 0)}))
        << className;
  }
}

TEST(PublishAssociations, OfTwoControllersUnderOneNumberTheFirstIsLinked) {
  Publishing host;
  host.AddController("1");
  host.nameSpace.Add(kController, {
                                      {"ControllerNum", "1"}
  });
  host.nameSpace.Add(kController, {
                                      {"ControllerNum", "1"}
  });
  host.nameSpace.Add(kLogicalDisk, {
                                       {"ControllerNum", "1"}
  });
  EXPECT_EQ(Associations(host, PublishControllerToLogicalDisks), Instances{Depends(kLogicalDisk, 0, kController, 0)});
}

TEST(PublishAssociations, DiskDrivesAreLinkedToTheirControllerWhateverTheirType) {
  Publishing host;
  host.AddController("1");
  host.nameSpace.Add(kController, {
                                      {"ControllerNum", "1"}
  });
  for (const char* const type : {"Hard disk", "Tape", "", "Initiator"}) {
    host.nameSpace.Add(kDiskDrive, {
                                       {"ControllerNum", "1" },
                                       {"DeviceType",    type}
    });
  }
  EXPECT_EQ(Associations(host, PublishControllerToDiskDrives).size(), 4U);
}

TEST(PublishAssociations, AnEndWithoutInstancesGivesNoAssociationAndNoMessage) {
  for (const PublishRoutine routine :
       {PublishControllerToLogicalDisks, PublishControllerToDiskDrives, PublishControllerToDiskGroups,
        PublishControllerToFirmware, PublishControllerToBootBlock, PublishControllerToBios, PublishDiskDriveToFirmware,
        PublishDiskDriveToDeviceData, PublishLogicalDiskToBadStripes}) {
    Publishing nothing;
    EXPECT_EQ(Associations(nothing, routine), Instances{});
    Publishing controllersAlone;
    controllersAlone.AddController("1");
    controllersAlone.nameSpace.Add(kController, {
                                                    {"ControllerNum", "1"}
    });
    EXPECT_EQ(Associations(controllersAlone, routine), Instances{});
  }
}

TEST(PublishAssociations, TheFirmwareOfADriveHangsOnItsIdentifierAndItsType) {
  struct Case {
    const char* type;
    bool linked;
  };
  constexpr Case kCases[] = {
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
  for (const Case& one : kCases) {
    Publishing host;
    host.nameSpace.Add(kDiskDrive, {
                                       {"ControllerNum", "1"       },
                                       {"DeviceID",      "C1 other"},
                                       {"DeviceType",    one.type  }
    });
    host.nameSpace.Add(kDiskDrive,
                       {
                           {"ControllerNum", "1"             },
                           {"DeviceID",      "C1 CH0 I03:SN1"},
                           {"DeviceType",    one.type        }
    });
    host.nameSpace.Add(kDriveVersion, {
                                          {"SoftwareElementID", "2-C1 CH0 I03:SN1"}
    });
    host.nameSpace.Add(kDriveVersion, {
                                          {"SoftwareElementID", "1-C1 CH0 I03:SN1"}
    });
    EXPECT_EQ(Associations(host, PublishDiskDriveToFirmware),
              one.linked ? Instances{Depends(kDriveVersion, 1, kDiskDrive, 1)} : Instances{})
        << one.type;
  }
}

TEST(PublishAssociations, TheStatisticsOfADriveHangOnControllerChannelAndTargetAndItsType) {
  struct Case {
    const char* type;
    bool linked;
  };
  constexpr Case kCases[] = {
      {"Hard disk",        true },
      {"a Hard drive",     true },
      {"Processor device", true },
      {"Tape",             true },
      {"Enclosure",        false},
      {"Unknown",          false},
      {"",                 false},
  };
  for (const Case& one : kCases) {
    Publishing host;
    host.nameSpace.Add(kDiskDrive,
                       {
                           {"ControllerNum", "1"     },
                           {"Channel",       "0"     },
                           {"ScsiId",        "3"     },
                           {"DeviceType",    one.type}
    });
    for (const char* const key : {"Zentraxis:1C0S4", "Zentraxis:1C0S3", "Zentraxis:2C0S3"}) {
      host.nameSpace.Add(kDeviceData, {
                                          {"InstanceID", key}
      });
    }
    EXPECT_EQ(Associations(host, PublishDiskDriveToDeviceData),
              one.linked ? Instances{Describes(kDeviceData, 1, kDiskDrive, 0)} : Instances{})
        << one.type;
  }
}

TEST(PublishAssociations, BadStripesAreFoundByTheTwoNumbersRunTogether) {
  Publishing host;
  for (const auto& [controller, drive] : {std::pair("1", "2"), std::pair("11", "2"), std::pair("1", "12")}) {
    host.nameSpace.Add(kLogicalDisk, {
                                         {"ControllerNum",   controller},
                                         {"LogicalDriveNum", drive     }
    });
  }
  for (const auto& [controller, drive] : {std::pair("1", "12"), std::pair("1", "2"), std::pair("3", "1")}) {
    host.nameSpace.Add(kBadStripe, {
                                       {"ControllerNum", controller},
                                       {"LogicalDrive",  drive     }
    });
  }
  EXPECT_EQ(Associations(host, PublishLogicalDiskToBadStripes),
            (Instances{Describes(kBadStripe, 1, kLogicalDisk, 0), Describes(kBadStripe, 0, kLogicalDisk, 1),
                       Describes(kBadStripe, 0, kLogicalDisk, 2)}));
}

// A host full of instances whose keys meet often and by chance.
class RandomHost {
 public:
  explicit RandomHost(unsigned seed) : random_(seed) {
    for (int count = 0; count < 12; ++count) host.AddController(Number());
    for (int count = 0; count < 60; ++count) {
      host.nameSpace.Add(kController, {
                                          {"ControllerNum", Number()}
      });
      host.nameSpace.Add(kLogicalDisk, {
                                           {"ControllerNum",   Number()},
                                           {"LogicalDriveNum", Number()}
      });
      host.nameSpace.Add(kBadStripe, {
                                         {"ControllerNum", Number()},
                                         {"LogicalDrive",  Number()}
      });
      host.nameSpace.Add(kDiskDrive, {
                                         {"ControllerNum", Number()},
                                         {"Channel",       Number()},
                                         {"ScsiId",        Number()},
                                         {"DeviceID",      Number()},
                                         {"DeviceType",    Type()  }
      });
      host.nameSpace.Add(kDeviceData, {
                                          {"InstanceID", DeviceDataId(Number(), Number(), Number())}
      });
      host.nameSpace.Add(kDriveVersion, {
                                            {"SoftwareElementID", Number() + "-" + Number()}
      });
    }
  }

  std::string Value(const std::string& className, const std::string& property, std::size_t number) {
    return Values(className + "." + property, className, property).at(number);
  }
  std::size_t Count(const std::string& className, const std::string& property) {
    return Values(className + "." + property, className, property).size();
  }

  Publishing host;

 private:
  std::string Number() { return std::to_string(std::uniform_int_distribution<>(1, 3)(random_)); }
  std::string Type() {
    constexpr const char* kTypes[] = {"Hard disk", "Hard drive", "Processor device", "Tape", "Enclosure", "Unknown",
                                      ""};
    return kTypes[std::uniform_int_distribution<>(0, 6)(random_)];
  }
  const Properties& Values(const std::string& key, const std::string& className, const std::string& property) {
    const auto known = values_.find(key);
    if (known != values_.end()) return known->second;
    return values_[key] = host.nameSpace.Published(className, property);
  }

  std::mt19937 random_;
  std::map<std::string, Properties> values_;
};

// Every pair is looked at, in the order in which links are published.
Instances EveryPair(const std::string& outerClass, std::size_t outerCount, const std::string& innerClass,
                    std::size_t innerCount, const std::function<bool(std::size_t, std::size_t)>& linked,
                    Properties (*link)(const std::string&, std::size_t, const std::string&, std::size_t)) {
  Instances links;
  for (std::size_t outer = 0; outer < outerCount; ++outer) {
    for (std::size_t inner = 0; inner < innerCount; ++inner) {
      if (linked(outer, inner)) links.push_back(link(innerClass, inner, outerClass, outer));
    }
  }
  return links;
}

bool ContainsOneOf(const std::string& text, std::initializer_list<const char*> words) {
  return std::ranges::any_of(words, [&](const char* word) { return text.find(word) != text.npos; });
}

TEST(PublishAssociations, EqualWhatLookingAtEveryPairGives) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomHost drives(seed);
    const std::size_t driveCount = drives.Count(kDiskDrive, "DeviceID");
    const auto firmware = [&](std::size_t drive, std::size_t version) {
      return ContainsOneOf(drives.Value(kDiskDrive, "DeviceType", drive),
                           {"Hard disk", "Hard drive", "Processor device", "Enclosure", "Unknown"}) &&
             drives.Value(kDriveVersion, "SoftwareElementID", version) ==
                 drives.Value(kDiskDrive, "ControllerNum", drive) + "-" + drives.Value(kDiskDrive, "DeviceID", drive);
    };
    const Instances firmwareLinks = EveryPair(kDiskDrive, driveCount, kDriveVersion,
                                              drives.Count(kDriveVersion, "SoftwareElementID"), firmware, Depends);
    EXPECT_EQ(Associations(drives.host, PublishDiskDriveToFirmware), firmwareLinks) << seed;
    EXPECT_GT(firmwareLinks.size(), 100U) << seed;

    RandomHost statistics(seed);
    const auto deviceData = [&](std::size_t drive, std::size_t stats) {
      return ContainsOneOf(statistics.Value(kDiskDrive, "DeviceType", drive),
                           {"Hard disk", "Hard drive", "Processor device", "Tape"}) &&
             statistics.Value(kDeviceData, "InstanceID", stats) ==
                 "Zentraxis:" + statistics.Value(kDiskDrive, "ControllerNum", drive) + "C" +
                     statistics.Value(kDiskDrive, "Channel", drive) + "S" +
                     statistics.Value(kDiskDrive, "ScsiId", drive);
    };
    const Instances statisticsLinks = EveryPair(kDiskDrive, driveCount, kDeviceData,
                                                statistics.Count(kDeviceData, "InstanceID"), deviceData, Describes);
    EXPECT_EQ(Associations(statistics.host, PublishDiskDriveToDeviceData), statisticsLinks) << seed;
    EXPECT_GT(statisticsLinks.size(), 20U) << seed;

    RandomHost stripes(seed);
    const auto badStripes = [&](std::size_t disk, std::size_t stripe) {
      return stripes.Value(kLogicalDisk, "ControllerNum", disk) +
                 stripes.Value(kLogicalDisk, "LogicalDriveNum", disk) ==
             stripes.Value(kBadStripe, "ControllerNum", stripe) + stripes.Value(kBadStripe, "LogicalDrive", stripe);
    };
    const Instances stripeLinks = EveryPair(kLogicalDisk, stripes.Count(kLogicalDisk, "ControllerNum"), kBadStripe,
                                            stripes.Count(kBadStripe, "ControllerNum"), badStripes, Describes);
    EXPECT_EQ(Associations(stripes.host, PublishLogicalDiskToBadStripes), stripeLinks) << seed;
    EXPECT_GT(stripeLinks.size(), 100U) << seed;
  }
}

TEST(PublishAssociations, OfControllersEqualWhatLookingAtEveryPairGives) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    RandomHost random(seed);
    Instances expected;
    for (const auto& controller : random.host.controllers) {
      const std::string& number = controller->ControllerNum;
      for (std::size_t candidate = 0; candidate < random.Count(kController, "ControllerNum"); ++candidate) {
        if (random.Value(kController, "ControllerNum", candidate) != number) continue;
        for (std::size_t disk = 0; disk < random.Count(kLogicalDisk, "ControllerNum"); ++disk) {
          if (random.Value(kLogicalDisk, "ControllerNum", disk) != number) continue;
          expected.push_back(Depends(kLogicalDisk, disk, kController, candidate));
        }
        break;  // the first controller of the number alone
      }
    }
    EXPECT_EQ(Associations(random.host, PublishControllerToLogicalDisks), expected) << seed;
    EXPECT_GT(expected.size(), 100U) << seed;
  }
}

}  // namespace
