#include "host/hxahost/machine/health_rules.h"

#include <algorithm>
#include <set>
#include <string>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/machine/health.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;

constexpr auto kFine = Severity::kFine;
constexpr auto kWarning = Severity::kWarning;
constexpr auto kCritical = Severity::kCritical;
constexpr auto kUnknown = Severity::kUnknown;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kLogicalDisk = "KVRSG_zxLogicalDisk";
constexpr const char* kDiskDrive = "KVRSG_zxDiskDrive";

// What a utility prints and what is to come of it on a machine on which nothing else is wrong.
struct Case {
  const char* className;
  const char* property;
  const char* printed;
  Severity severity;
};

const Case kCases[] = {
    {kLogicalDisk,             "LogicalDriveStatus",        "Okay (OKY)",                    kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Okay",                          kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Optimal",                       kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Free (FRE)",                    kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "System (SYS)",                  kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Logical drive migration (LDM)", kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Building",                      kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Clearing",                      kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Expanding",                     kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Initializing",                  kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Migrating",                     kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Synchronizing",                 kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Optimal, Verifying",            kFine    },
    {kLogicalDisk,             "LogicalDriveStatus",        "Offline (OFL)",                 kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Failed",                        kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Missing",                       kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Blocked (BLK)",                 kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Critical (CRT)",                kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Critical system (CSY)",         kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Critical migration (CRM)",      kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Degraded",                      kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "DEGRADED",                      kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "Impacted",                      kWarning },
    {kLogicalDisk,             "LogicalDriveStatus",        "Suboptimal",                    kWarning },
    {kLogicalDisk,             "LogicalDriveStatus",        "Rebuild (RBL)",                 kWarning },
    {kLogicalDisk,             "LogicalDriveStatus",        "Rebuilding",                    kWarning },
    {kLogicalDisk,             "LogicalDriveStatus",        "Degraded, Rebuilding",          kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "",                              kUnknown },
    {kLogicalDisk,             "LogicalDriveStatus",        "Not Optimal",                   kUnknown },
    {kLogicalDisk,             "LogicalDriveStatus",        "Okay (XYZ)",                    kUnknown },
    {kLogicalDisk,             "LogicalDriveStatus",        "Okay (CRT)",                    kCritical},
    {kLogicalDisk,             "LogicalDriveStatus",        "OptimalFailed",                 kUnknown },
    {kLogicalDisk,             "LogicalDriveStatus",        "--",                            kUnknown },
    {kLogicalDisk,             "LogicalDriveStatus",        "Opt\xefmal",                    kUnknown },

    {"KVRSG_BadStripeData",    "NumBadStripes",             "0",                             kFine    },
    {"KVRSG_BadStripeData",    "NumBadStripes",             "1",                             kCritical},
    {"KVRSG_BadStripeData",    "NumBadStripes",             "",                              kUnknown },
    {"KVRSG_BadStripeData",    "NumBadStripes",             "?",                             kUnknown },

    {kLogicalDisk,             "AccessBlocked",             "No",                            kFine    },
    {kLogicalDisk,             "AccessBlocked",             "Yes",                           kCritical},
    {kLogicalDisk,             "AccessBlocked",             "",                              kFine    },
    {kLogicalDisk,             "AccessBlocked",             "Perhaps",                       kUnknown },

    {kLogicalDisk,             "DefunctSegments",           "No",                            kFine    },
    {kLogicalDisk,             "DefunctSegments",           "None",                          kFine    },
    {kLogicalDisk,             "DefunctSegments",           "Yes (0,8)",                     kWarning },

    {kDiskDrive,               "State",                     "Online (ONL)",                  kFine    },
    {kDiskDrive,               "State",                     "Optimal",                       kFine    },
    {kDiskDrive,               "State",                     "Okay (OKY)",                    kFine    },
    {kDiskDrive,               "State",                     "Ready (RDY)",                   kFine    },
    {kDiskDrive,               "State",                     "Available",                     kFine    },
    {kDiskDrive,               "State",                     "Raw (Ready)",                   kFine    },
    {kDiskDrive,               "State",                     "Unconfigured",                  kFine    },
    {kDiskDrive,               "State",                     "Unconfigured Good",             kFine    },
    {kDiskDrive,               "State",                     "Empty (EMP)",                   kFine    },
    {kDiskDrive,               "State",                     "Standby (SBY)",                 kFine    },
    {kDiskDrive,               "State",                     "Hot spare (HSP)",               kFine    },
    {kDiskDrive,               "State",                     "Hot Spare for Logical drive 1", kFine    },
    {kDiskDrive,               "State",                     "Standby hot spare (SHS)",       kFine    },
    {kDiskDrive,               "State",                     "Dedicated Hot-Spare",           kFine    },
    {kDiskDrive,               "State",                     "Global Hot-Spare",              kFine    },
    {kDiskDrive,               "State",                     "Rebuild (RBL)",                 kFine    },
    {kDiskDrive,               "State",                     "Rebuilding",                    kFine    },
    {kDiskDrive,               "State",                     "Defunct (DDD)",                 kCritical},
    {kDiskDrive,               "State",                     "Failed",                        kCritical},
    {kDiskDrive,               "State",                     "Missing",                       kCritical},
    {kDiskDrive,               "State",                     "Offline (OFL)",                 kCritical},
    {kDiskDrive,               "State",                     "Defunct hot-spare (DHS)",       kWarning },
    {kDiskDrive,               "State",                     "Failed hot spare",              kWarning },
    {kDiskDrive,               "State",                     "Unconfigured Bad",              kWarning },
    {kDiskDrive,               "State",                     "",                              kUnknown },
    {kDiskDrive,               "State",                     "Sleeping",                      kUnknown },
    {kDiskDrive,               "State",                     "Ready for removal",             kUnknown },

    {kDiskDrive,               "PFA",                       "No",                            kFine    },
    {kDiskDrive,               "PFA",                       "0",                             kFine    },
    {kDiskDrive,               "PFA",                       "Yes",                           kWarning },
    {kDiskDrive,               "PFA",                       "1",                             kWarning },
    {kDiskDrive,               "PFA",                       "",                              kFine    },
    {kDiskDrive,               "PFA",                       "Maybe",                         kUnknown },

    {"KVRSG_zxSCSIDeviceData", "PFA",                       "0",                             kFine    },
    {"KVRSG_zxSCSIDeviceData", "PFA",                       "1",                             kWarning },
    {"KVRSG_zxSCSIDeviceData", "PFA",                       "?",                             kUnknown },

    {kController,              "ControllerStatus",          "Optimal",                       kFine    },
    {kController,              "ControllerStatus",          "Okay",                          kFine    },
    {kController,              "ControllerStatus",          "Failed",                        kCritical},
    {kController,              "ControllerStatus",          "Offline",                       kCritical},
    {kController,              "ControllerStatus",          "Critical",                      kCritical},
    {kController,              "ControllerStatus",          "Degraded",                      kWarning },
    {kController,              "ControllerStatus",          "",                              kUnknown },
    {kController,              "ControllerStatus",          "Puzzled",                       kUnknown },

    {kController,              "LogicalDriveStatusCnt",     "4/0/0",                         kFine    },
    {kController,              "LogicalDriveStatusCnt",     "4/1/0",                         kCritical},
    {kController,              "LogicalDriveStatusCnt",     "4/0/2",                         kCritical},
    {kController,              "LogicalDriveStatusCnt",     "",                              kFine    },
    {kController,              "LogicalDriveStatusCnt",     "4/0",                           kUnknown },

    {kController,              "DefunctDiskDriveCnt",       "0",                             kFine    },
    {kController,              "DefunctDiskDriveCnt",       "2",                             kCritical},
    {kController,              "DefunctDiskDriveCnt",       "few",                           kUnknown },

    {kController,              "ControllerTemp",            "46 C/ 114 F (Normal)",          kFine    },
    {kController,              "ControllerTemp",            "46 C/ 114 F",                   kFine    },
    {kController,              "ControllerTemp",            "80 C/ 176 F (High)",            kWarning },
    {kController,              "ControllerTemp",            "80 C/ 176 F (Warning)",         kWarning },
    {kController,              "ControllerTemp",            "80 C/ 176 F (Abnormal)",        kWarning },
    {kController,              "ControllerTemp",            "99 C/ 210 F (Critical)",        kCritical},
    {kController,              "ControllerTemp",            "46 C/ 114 F (Odd)",             kUnknown },

    {kController,              "ControllerBatteryStatus",   "Okay",                          kFine    },
    {kController,              "ControllerBatteryStatus",   "Optimal",                       kFine    },
    {kController,              "ControllerBatteryStatus",   "Charged",                       kFine    },
    {kController,              "ControllerBatteryStatus",   "Charging",                      kFine    },
    {kController,              "ControllerBatteryStatus",   "Not Installed",                 kFine    },
    {kController,              "ControllerBatteryStatus",   "Not Present",                   kFine    },
    {kController,              "ControllerBatteryStatus",   "None",                          kFine    },
    {kController,              "ControllerBatteryStatus",   "",                              kFine    },
    {kController,              "ControllerBatteryStatus",   "Low",                           kWarning },
    {kController,              "ControllerBatteryStatus",   "Discharging",                   kWarning },
    {kController,              "ControllerBatteryStatus",   "Missing",                       kWarning },
    {kController,              "ControllerBatteryStatus",   "Degraded",                      kWarning },
    {kController,              "ControllerBatteryStatus",   "Failed",                        kWarning },
    {kController,              "ControllerBatteryStatus",   "Leaking",                       kUnknown },

    {kController,              "ControllerBatteryOverTemp", "No",                            kFine    },
    {kController,              "ControllerBatteryOverTemp", "Yes",                           kWarning },
    {kController,              "ControllerBatteryOverTemp", "Cold",                          kUnknown },
};

std::string Name(const Case& each) {
  return std::string(each.className) + " " + each.property + " \"" + each.printed + "\"";
}

TEST(HealthRules, EachBreaksOneThingAndExactlyThatIsFound) {
  for (const Case& each : kCases) {
    HealthyMachine machine;
    machine.Set(each.className, each.property, std::string(each.printed));
    const Findings findings = EvaluateHealth(machine.Header(), machine.Result());
    if (each.severity == kFine) {
      EXPECT_TRUE(findings.empty()) << Name(each);
      continue;
    }
    ASSERT_EQ(findings.size(), 1U) << Name(each);
    EXPECT_EQ(findings[0].severity, each.severity) << Name(each);
    EXPECT_EQ(findings[0].className, each.className) << Name(each);
    EXPECT_EQ(findings[0].property, each.property) << Name(each);
    EXPECT_EQ(findings[0].text, each.printed) << Name(each);
    EXPECT_NE(findings[0].meaning, "") << Name(each);
  }
}

bool IsOfInstances(const HealthRule& rule) {
  return rule.value->className != kToolRun && rule.value->className != kLog && rule.value->className != kLeftOut;
}

// A case that prints the rule's word, and the code where it has one.
bool IsTried(const HealthRule& rule, const Case& each) {
  if (rule.value->className != each.className || rule.value->property != each.property) return false;
  const Words words = rule.value->cut(each.printed);
  if (rule.word.empty()) return words.empty();
  const auto has = [&](std::string_view word) { return std::ranges::find(words, word) != words.end(); };
  return has(rule.word) && (rule.code.empty() || has(rule.code) || rule.word == "rebuild" || rule.word == "okay");
}

TEST(HealthRules, AreEachTriedByACase) {
  for (const HealthRule& rule : HealthRules()) {
    if (!IsOfInstances(rule)) continue;
    EXPECT_TRUE(std::ranges::any_of(kCases, [&](const Case& each) { return IsTried(rule, each); }))
        << rule.value->property << " " << rule.word;
  }
}

TEST(HealthRules, NameEachWordOfAValueOnceInOnePlace) {
  std::set<std::tuple<const WatchedValue*, std::string_view, Where>> seen;
  std::set<std::tuple<const WatchedValue*, std::string_view, Where>> codes;
  for (const HealthRule& rule : HealthRules()) {
    EXPECT_TRUE(seen.emplace(rule.value, rule.word, rule.where).second) << rule.value->property << " " << rule.word;
    if (rule.code.empty()) continue;
    EXPECT_TRUE(codes.emplace(rule.value, rule.code, rule.where).second) << rule.value->property << " " << rule.code;
  }
}

TEST(HealthRules, NameWordsInTheFormInWhichTheyAreCompared) {
  for (const HealthRule& rule : HealthRules()) {
    EXPECT_EQ(NormalWord(rule.word), rule.word);
    EXPECT_EQ(NormalWord(rule.code), rule.code);
  }
}

TEST(HealthRules, SayWhatItMeansWhereItIsNotFineAndWhoPrintsIt) {
  for (const HealthRule& rule : HealthRules()) {
    EXPECT_EQ(rule.meaning.empty(), rule.severity == kFine) << rule.value->property << " " << rule.word;
    EXPECT_FALSE(rule.tools.empty()) << rule.value->property << " " << rule.word;
  }
}

TEST(HealthRules, OfOneValueStandTogether) {
  std::set<const WatchedValue*> done;
  const WatchedValue* current = nullptr;
  for (const HealthRule& rule : HealthRules()) {
    if (rule.value == current) continue;
    current = rule.value;
    EXPECT_TRUE(done.insert(current).second) << current->property;
  }
}

TEST(HealthRules, AreFoundByTheirWord) {
  EXPECT_EQ(RuleFor(kDriveState, "degraded").severity, kCritical);
  EXPECT_EQ(RuleFor(kOutcome, "timed out").severity, kWarning);
}

}  // namespace
