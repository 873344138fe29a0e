#include "host/hxahost/machine/health_rules.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/machine/health.h"
#include "tests/support/healthy_machine.h"

namespace {

using namespace hxahost;

constexpr auto kUnsaid = Level::kUnsaid;
constexpr auto kFine = Level::kFine;
constexpr auto kIdle = Level::kIdle;
constexpr auto kBusy = Level::kBusy;
constexpr auto kUnknown = Level::kUnknown;
constexpr auto kWarning = Level::kWarning;
constexpr auto kCritical = Level::kCritical;

constexpr const char* kController = "KVRSG_zxSCSIProtocolController";
constexpr const char* kDrive = "KVRSG_zxLogicalDisk";
constexpr const char* kDisk = "KVRSG_zxDiskDrive";
constexpr const char* kStripes = "KVRSG_BadStripeData";
constexpr const char* kCounters = "KVRSG_zxSCSIDeviceData";

// A printed value and its level on a machine without other faults.
struct Case {
  const char* className;
  const char* property;
  Level level;
  std::vector<const char*> printed;
};

const Case kCases[] = {
    {kDrive,      "LogicalDriveStatus",        kFine,     {"Okay (OKY)", "Okay", "Optimal"}                        },
    {kDrive,      "LogicalDriveStatus",        kIdle,     {"Free (FRE)", "System (SYS)"}                           },
    {kDrive,      "LogicalDriveStatus",        kBusy,     {"Logical drive migration (LDM)", "Building", "Clearing"}},
    {kDrive,      "LogicalDriveStatus",        kBusy,     {"Expanding", "Initializing", "Migrating"}               },
    {kDrive,      "LogicalDriveStatus",        kBusy,     {"Synchronizing", "Optimal, Verifying"}                  },
    {kDrive,      "LogicalDriveStatus",        kCritical, {"Offline (OFL)", "Failed", "Missing", "Blocked (BLK)"}  },
    {kDrive,      "LogicalDriveStatus",        kCritical, {"Critical (CRT)", "Critical system (CSY)"}              },
    {kDrive,      "LogicalDriveStatus",        kCritical, {"Critical migration (CRM)", "Degraded", "DEGRADED"}     },
    {kDrive,      "LogicalDriveStatus",        kCritical, {"Degraded, Rebuilding", "Okay (CRT)"}                   },
    {kDrive,      "LogicalDriveStatus",        kWarning,  {"Impacted", "Suboptimal", "Rebuild (RBL)", "Rebuilding"}},
    {kDrive,      "LogicalDriveStatus",        kUnknown,  {"", "Not Optimal", "Okay (XYZ)", "OptimalFailed", "--"} },
    {kDrive,      "LogicalDriveStatus",        kUnknown,  {"Opt\xefmal"}                                           },
    {kStripes,    "NumBadStripes",             kFine,     {"0"}                                                    },
    {kStripes,    "NumBadStripes",             kCritical, {"1"}                                                    },
    {kStripes,    "NumBadStripes",             kUnknown,  {"", "?"}                                                },
    {kDrive,      "AccessBlocked",             kFine,     {"No"}                                                   },
    {kDrive,      "AccessBlocked",             kCritical, {"Yes"}                                                  },
    {kDrive,      "AccessBlocked",             kUnsaid,   {""}                                                     },
    {kDrive,      "AccessBlocked",             kUnknown,  {"Perhaps"}                                              },
    {kDrive,      "DefunctSegments",           kFine,     {"No", "None"}                                           },
    {kDrive,      "DefunctSegments",           kWarning,  {"Yes (0,8)"}                                            },
    {kDisk,       "State",                     kFine,     {"Online (ONL)", "Optimal", "Okay (OKY)"}                },
    {kDisk,       "State",                     kIdle,     {"Ready (RDY)", "Available", "Raw (Ready)"}              },
    {kDisk,       "State",                     kIdle,     {"Unconfigured", "Unconfigured Good", "Empty (EMP)"}     },
    {kDisk,       "State",                     kIdle,     {"Standby (SBY)", "Hot spare (HSP)"}                     },
    {kDisk,       "State",                     kIdle,     {"Hot Spare for Logical drive 1"}                        },
    {kDisk,       "State",                     kIdle,     {"Standby hot spare (SHS)", "Dedicated Hot-Spare"}       },
    {kDisk,       "State",                     kIdle,     {"Global Hot-Spare", "Ready (Foreign)"}                  },
    {kDisk,       "State",                     kBusy,     {"Rebuild (RBL)", "Rebuilding"}                          },
    {kDisk,       "State",                     kCritical, {"Defunct (DDD)", "Failed", "Missing", "Offline (OFL)"}  },
    {kDisk,       "State",                     kWarning,  {"Defunct hot-spare (DHS)", "Failed hot spare"}          },
    {kDisk,       "State",                     kWarning,  {"Unconfigured Bad"}                                     },
    {kDisk,       "State",                     kUnknown,  {"", "Sleeping", "Ready for removal"}                    },
    {kDisk,       "PFA",                       kFine,     {"No", "0"}                                              },
    {kDisk,       "PFA",                       kWarning,  {"Yes", "1"}                                             },
    {kDisk,       "PFA",                       kUnsaid,   {""}                                                     },
    {kDisk,       "PFA",                       kUnknown,  {"Maybe"}                                                },
    {kCounters,   "PFA",                       kFine,     {"0"}                                                    },
    {kCounters,   "PFA",                       kWarning,  {"1"}                                                    },
    {kCounters,   "PFA",                       kUnknown,  {"?"}                                                    },
    {kController, "ControllerStatus",          kFine,     {"Optimal", "Okay"}                                      },
    {kController, "ControllerStatus",          kCritical, {"Failed", "Offline", "Critical"}                        },
    {kController, "ControllerStatus",          kWarning,  {"Degraded"}                                             },
    {kController, "ControllerStatus",          kUnknown,  {"", "Puzzled"}                                          },
    {kController, "LogicalDriveStatusCnt",     kFine,     {"4/0/0"}                                                },
    {kController, "LogicalDriveStatusCnt",     kCritical, {"4/1/0", "4/0/2"}                                       },
    {kController, "LogicalDriveStatusCnt",     kUnsaid,   {""}                                                     },
    {kController, "LogicalDriveStatusCnt",     kUnknown,  {"4/0"}                                                  },
    {kController, "DefunctDiskDriveCnt",       kFine,     {"0"}                                                    },
    {kController, "DefunctDiskDriveCnt",       kCritical, {"2"}                                                    },
    {kController, "DefunctDiskDriveCnt",       kUnknown,  {"few"}                                                  },
    {kController, "ControllerTemp",            kFine,     {"46 C/ 114 F (Normal)", "46 C/ 114 F"}                  },
    {kController, "ControllerTemp",            kWarning,  {"80 C/ 176 F (High)", "80 C/ 176 F (Warning)"}          },
    {kController, "ControllerTemp",            kWarning,  {"80 C/ 176 F (Abnormal)"}                               },
    {kController, "ControllerTemp",            kCritical, {"99 C/ 210 F (Critical)"}                               },
    {kController, "ControllerTemp",            kUnknown,  {"46 C/ 114 F (Odd)"}                                    },
    {kController, "ControllerBatteryStatus",   kFine,     {"Okay", "Optimal", "Charged", "Charging"}               },
    {kController, "ControllerBatteryStatus",   kFine,     {"Not Installed", "Not Present", "None"}                 },
    {kController, "ControllerBatteryStatus",   kUnsaid,   {""}                                                     },
    {kController, "ControllerBatteryStatus",   kWarning,  {"Low", "Discharging", "Missing", "Degraded", "Failed"}  },
    {kController, "ControllerBatteryStatus",   kUnknown,  {"Leaking"}                                              },
    {kController, "ControllerBatteryOverTemp", kFine,     {"No"}                                                   },
    {kController, "ControllerBatteryOverTemp", kWarning,  {"Yes"}                                                  },
    {kController, "ControllerBatteryOverTemp", kUnknown,  {"Cold"}                                                 },
};

// The level of the object with this state; empty if the property is not a state.
std::optional<Level> LevelOfState(const Machine& machine, const Case& each, const std::string& printed) {
  for (const Controller& controller : machine.controllers) {
    for (const Object* const object : ObjectsOf(controller, each.className)) {
      if (object->state.property == each.property && object->state.text == printed) return object->state.level;
    }
  }
  return std::nullopt;
}

TEST(HealthRules, EachBreaksOneThingAndExactlyThatIsFound) {
  for (const Case& each : kCases) {
    for (const std::string printed : each.printed) {
      SCOPED_TRACE(std::string(each.property) + " \"" + printed + "\"");
      HealthyMachine broken;
      broken.Set(each.className, each.property, printed);
      const Machine machine = BuildMachine(broken.Header(), broken.Result());
      const auto level = LevelOfState(machine, each, printed);
      const Level found = level && !printed.empty() ? *level : each.level;
      EXPECT_EQ(found, each.level);
      const bool isFine = SeverityOf(each.level) == Severity::kFine;
      ASSERT_EQ(machine.findings.size(), isFine ? 0U : 1U);
      if (isFine) continue;
      const Finding& finding = machine.findings.front();
      EXPECT_EQ(finding.severity, SeverityOf(each.level));
      EXPECT_EQ(finding.className, each.className);
      EXPECT_EQ(finding.property, each.property);
      EXPECT_EQ(finding.text, printed);
      EXPECT_NE(TextOf(finding.meaning), "");
    }
  }
}

// The others have tests of their own.
bool IsOfInstances(const HealthRule& rule) {
  constexpr std::string_view kOthers[] = {kToolRun, kLog, kLeftOut, kBaseline, kExpectation};
  return std::ranges::find(kOthers, rule.value->className) == std::end(kOthers);
}

// Whether the case prints the rule's word, and its code if it has one.
bool IsTried(const HealthRule& rule, const char* printed) {
  const Words words = rule.value->cut(printed);
  if (rule.word.empty()) return words.empty();
  const auto has = [&](std::string_view word) { return std::ranges::find(words, word) != words.end(); };
  return has(rule.word) && (rule.code.empty() || has(rule.code) || rule.word == "rebuild" || rule.word == "okay");
}

TEST(HealthRules, AreEachTriedByACase) {
  for (const HealthRule& rule : HealthRules()) {
    if (!IsOfInstances(rule)) continue;
    const bool isTried = std::ranges::any_of(kCases, [&](const Case& each) {
      return rule.value->className == each.className && rule.value->property == each.property &&
             std::ranges::any_of(each.printed, [&](const char* printed) { return IsTried(rule, printed); });
    });
    EXPECT_TRUE(isTried) << rule.value->property << " " << rule.word;
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

TEST(HealthRules, HaveAMeaningUnlessFineAndNameTheTools) {
  for (const HealthRule& rule : HealthRules()) {
    EXPECT_EQ(rule.meaning.what.empty(), SeverityOf(rule.level) == Severity::kFine)
        << rule.value->property << " " << rule.word;
    EXPECT_FALSE(rule.tools.empty()) << rule.value->property << " " << rule.word;
  }
}

TEST(HealthRules, OfOneValueAreConsecutive) {
  std::set<const WatchedValue*> done;
  const WatchedValue* current = nullptr;
  for (const HealthRule& rule : HealthRules()) {
    if (rule.value == current) continue;
    current = rule.value;
    EXPECT_TRUE(done.insert(current).second) << current->property;
  }
}

TEST(HealthRules, AreFoundByTheirWord) {
  EXPECT_EQ(RuleFor(kDriveState, "degraded").level, kCritical);
  EXPECT_EQ(RuleFor(kOutcome, "timed out").level, kUnknown);
}

}  // namespace
