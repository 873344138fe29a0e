#include "host/hxahost/machine/health_rules.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxahost/result/tool_names.h"
#include "host/hxahost/schema/class_names.h"

namespace hxahost {

namespace {

constexpr auto kFine = Level::kFine;
constexpr auto kIdle = Level::kIdle;
constexpr auto kBusy = Level::kBusy;
constexpr auto kUnknown = Level::kUnknown;
constexpr auto kWarning = Level::kWarning;
constexpr auto kCritical = Level::kCritical;

constexpr auto kAnywhere = Where::kAnywhere;
constexpr auto kOnHardDisk = Where::kOnHardDisk;
constexpr auto kOnUnknownType = Where::kOnUnknownType;
constexpr auto kWithChannelLine = Where::kWithChannelLine;
constexpr auto kOnUnguardedArray = Where::kOnUnguardedArray;
constexpr auto kOnFailedSpares = Where::kOnFailedSpares;
constexpr auto kOnConfiguration = Where::kOnConfiguration;
constexpr auto kOnState = Where::kOnState;
constexpr auto kOnOptional = Where::kOnOptional;

constexpr WatchedValue kAccess = {kLogicalDiskClass, "AccessBlocked", FirstWord};
constexpr WatchedValue kSegments = {kLogicalDiskClass, "DefunctSegments", FirstWord};
constexpr WatchedValue kStripes = {kBadStripesClass, "NumBadStripes", CountWords};
constexpr WatchedValue kDriveCounts = {kControllerClass, "LogicalDriveStatusCnt", DriveCountWords};
constexpr WatchedValue kDefunct = {kControllerClass, "DefunctDiskDriveCnt", CountWords};
constexpr WatchedValue kBatteryHeat = {kControllerClass, "ControllerBatteryOverTemp", FirstWord};
constexpr WatchedValue kPfa = {kDiskDriveClass, "PFA", FirstWord};
constexpr WatchedValue kPfaCount = {kDeviceErrorsClass, "PFA", CountWords};

constexpr std::string_view kAll = "every utility";
constexpr std::string_view kNewer = "arcconf, hrconf_64";

// The meanings of findings and their actions.
constexpr Meaning kNothing = {};
constexpr Meaning kDataGone = {"its data cannot be reached",
                               "replace the failed disks and restore the logical drive from a backup",
                               Effect::kUnreachable};
constexpr Meaning kRefusesAccess = {"the controller blocks access to it, as it does after data loss",
                                    "restore the logical drive from a backup", Effect::kUnreachable};
constexpr Meaning kDataLost = {"data was lost in these stripes", "restore the logical drive from a backup",
                               Effect::kBadStripes};
constexpr Meaning kUnguarded = {"the array cannot tolerate another failure", "replace the failed disk now",
                                Effect::kDegraded};
constexpr Meaning kLessGuarded = {"the array tolerates fewer disk failures than configured", "replace the failed disk",
                                  Effect::kDegraded};
constexpr Meaning kDriveRebuilt = {"the logical drive has no redundancy until then", "wait for the end of the rebuild",
                                   Effect::kRebuilding};
constexpr Meaning kSegmentGone = {"a segment is on a failed or missing disk", "replace the disk", Effect::kSegment};
constexpr Meaning kFailedDisk = {"it has failed", "replace the disk", Effect::kDiskFailed};
constexpr Meaning kDiskOutOfService = {"it was taken out of service", "replace the disk", Effect::kDiskFailed};
constexpr Meaning kUnusedDiskBad = {"it is unusable, but no array uses it", "replace the disk", Effect::kDiskFailed};
constexpr Meaning kSpareFailed = {"no disk takes over when the next one fails", "replace the hot spare",
                                  Effect::kDiskFailed};
constexpr Meaning kDiskGone = {"it is missing", "check whether the disk was pulled, or replace it",
                               Effect::kDiskMissing};
constexpr Meaning kDiskRebuilt = {"its array has no redundancy until then", "wait for the end of the rebuild",
                                  Effect::kRebuilding};
constexpr Meaning kPredicted = {"it predicts that it will fail", "replace the disk soon", Effect::kPredicted};
constexpr Meaning kLeftOutController = {"its drives are published without it, as after a failure",
                                        "replace the controller", Effect::kController};
constexpr Meaning kFailedController = {"the controller has failed", "replace the controller", Effect::kController};
constexpr Meaning kTrouble = {"the controller reports an error", "see its event log", Effect::kCounted};
constexpr Meaning kSomeTrouble = {"the controller does not work as it should", "see its event log", Effect::kCounted};
constexpr Meaning kCountsOffline = {"the second number counts offline logical drives",
                                    "restore these logical drives from a backup", Effect::kCounted};
constexpr Meaning kCountsCritical = {"the third number counts logical drives without redundancy",
                                     "replace the failed disks of these logical drives", Effect::kCounted};
constexpr Meaning kCountsDefunct = {"the controller counts failed disks", "replace these disks", Effect::kCounted};
constexpr Meaning kHot = {"the controller is too hot", "check the cooling", Effect::kHeat};
constexpr Meaning kVeryHot = {"the controller is too hot", "check the cooling now", Effect::kHeat};
constexpr Meaning kBatteryHot = {"the battery is too hot", "check the cooling", Effect::kBattery};
constexpr Meaning kWeakBattery = {"cached data is lost when the power fails", "replace the battery", Effect::kBattery};
constexpr Meaning kNoState = {"the utility printed no state"};
constexpr Meaning kUnknownType = {"its type is not known, so its state was not read", "run the utility by hand",
                                  Effect::kUnread};
constexpr Meaning kNoCount = {"the utility printed no count"};
constexpr Meaning kReportedNone = {"it reported no controllers", "run the utility by hand"};
constexpr Meaning kMaybeWrong = {"its report may be incomplete", "run the utility by hand"};
constexpr Meaning kCutOff = {"its report is incomplete", "run the utility by hand"};
constexpr Meaning kHung = {"its controllers are not shown", "check whether the controller still responds"};
constexpr Meaning kNotAsked = {"some commands were not run", "list the runs with hxahost query --runs"};
constexpr Meaning kReplayEnded = {"the answers after it are not known", "record the bundle again with this version"};
constexpr Meaning kGone = {"it existed at the baseline", "check whether it was removed"};
constexpr Meaning kNotSeen = {"it existed at the baseline, and its utility did not answer", "run the utility by hand"};
constexpr Meaning kFewerThanExpected = {"there are fewer than expected", "find the missing ones"};
constexpr Meaning kNotRun = {"its controllers are not shown",
                             "put the utility into the folder zenx and make sure that it may be run"};
constexpr Meaning kTooFew = {"fewer controllers were published than answered",
                             "list the answers with hxahost query --runs"};
constexpr Meaning kUnread = {"what was not read may have failed",
                             "run the utility by hand and send a bundle; see hxahost query --unread", Effect::kUnread};
constexpr Meaning kUnchecked = {"whether all of it was read cannot be checked",
                                "run the utility by hand and send a bundle", Effect::kUnchecked};
constexpr Meaning kNothingKnown = {"nothing is known about this machine", "check the folder zenx"};
constexpr Meaning kCollectionEnded = {"the rest of the collection is missing", "see the log with hxahost query"};
constexpr Meaning kLegacyEnded = {"this controller and those after it are not shown", "run qcmdrun by hand"};
constexpr Meaning kStripesEnded = {"the bad stripes from here on are not shown", "run qcmdrun by hand"};
constexpr Meaning kNoneRead = {"no controller was published", "see the log with hxahost query"};
constexpr Meaning kEventsUnread = {"the RAID manager's events are not shown",
                                   "make sure that its log is an ordinary file; --input-limit allows larger ones"};
constexpr Meaning kUpdateDriver = {"this controller and those after it are not shown", "update the driver"};

// Begins the log entry about a driver that is too old for arcconf.
constexpr std::string_view kMismatch =
    "a zentraxis c4, c5, c6/c6 e or b3 is present, but there is a driver and firmware mismatch";

// Begins the log entry about a RAID manager's log that the plug-in does not read.
constexpr std::string_view kLogNotRead = "raid manager log not read";

constexpr HealthRule kRules[] = {
    {&kPresence,         "not published",           "",    kAll,     kCritical, kLeftOutController, kAnywhere        },
    {&kPresence,         "failed",                  "",    kAll,     kCritical, kFailedController,  kAnywhere        },

    {&kDriveState,       "okay",                    "oky", kAll,     kFine,     kNothing,           kAnywhere        },
    {&kDriveState,       "optimal",                 "",    kNewer,   kFine,     kNothing,           kAnywhere        },
    {&kDriveState,       "free",                    "fre", kQcmdrun, kIdle,     kNothing,           kAnywhere        },
    {&kDriveState,       "system",                  "sys", kQcmdrun, kIdle,     kNothing,           kAnywhere        },
    {&kDriveState,       "logical drive migration", "ldm", kQcmdrun, kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "building",                "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "clearing",                "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "expanding",               "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "initializing",            "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "migrating",               "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "synchronizing",           "",    kAll,     kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "verifying",               "",    kNewer,   kBusy,     kNothing,           kAnywhere        },
    {&kDriveState,       "offline",                 "ofl", kAll,     kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,       "failed",                  "",    kNewer,   kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,       "missing",                 "",    kNewer,   kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,       "blocked",                 "blk", kQcmdrun, kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,       "critical",                "crt", kAll,     kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,       "critical system",         "csy", kQcmdrun, kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,       "critical migration",      "crm", kQcmdrun, kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,       "degraded",                "",    kAll,     kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,       "impacted",                "",    kNewer,   kWarning,  kLessGuarded,       kAnywhere        },
    {&kDriveState,       "suboptimal",              "",    kNewer,   kWarning,  kLessGuarded,       kAnywhere        },
    {&kDriveState,       "rebuild",                 "rbl", kAll,     kWarning,  kDriveRebuilt,      kAnywhere        },
    {&kDriveState,       "rebuilding",              "",    kAll,     kWarning,  kDriveRebuilt,      kAnywhere        },
    {&kDriveState,       "",                        "",    kAll,     kUnknown,  kNoState,           kAnywhere        },

    {&kStripes,          "none",                    "",    kQcmdrun, kFine,     kNothing,           kAnywhere        },
    {&kStripes,          "some",                    "",    kQcmdrun, kCritical, kDataLost,          kAnywhere        },
    {&kStripes,          "",                        "",    kQcmdrun, kUnknown,  kNoCount,           kAnywhere        },

    {&kAccess,           "no",                      "",    kQcmdrun, kFine,     kNothing,           kAnywhere        },
    {&kAccess,           "yes",                     "",    kQcmdrun, kCritical, kRefusesAccess,     kAnywhere        },

    {&kSegments,         "no",                      "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kSegments,         "none",                    "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kSegments,         "yes",                     "",    kArcconf, kWarning,  kSegmentGone,       kAnywhere        },

    {&kDiskState,        "online",                  "onl", kAll,     kFine,     kNothing,           kAnywhere        },
    {&kDiskState,        "optimal",                 "",    kNewer,   kFine,     kNothing,           kAnywhere        },
    {&kDiskState,        "okay",                    "oky", kAll,     kFine,     kNothing,           kAnywhere        },
    {&kDiskState,        "ready",                   "rdy", kAll,     kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "available",               "",    kNewer,   kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "raw",                     "",    kNewer,   kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "foreign",                 "",    kNewer,   kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "unconfigured",            "",    kAll,     kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "unconfigured good",       "",    kAll,     kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "empty",                   "emp", kQcmdrun, kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "standby",                 "sby", kAll,     kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "hot spare",               "hsp", kAll,     kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "standby hot spare",       "shs", kQcmdrun, kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "dedicated hot spare",     "",    kNewer,   kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "global hot spare",        "",    kNewer,   kIdle,     kNothing,           kAnywhere        },
    {&kDiskState,        "rebuild",                 "rbl", kAll,     kWarning,  kDiskRebuilt,       kOnUnguardedArray},
    {&kDiskState,        "rebuilding",              "",    kAll,     kWarning,  kDiskRebuilt,       kOnUnguardedArray},
    {&kDiskState,        "rebuild",                 "rbl", kAll,     kBusy,     kNothing,           kAnywhere        },
    {&kDiskState,        "rebuilding",              "",    kAll,     kBusy,     kNothing,           kAnywhere        },
    {&kDiskState,        "defunct",                 "ddd", kQcmdrun, kCritical, kFailedDisk,        kAnywhere        },
    {&kDiskState,        "failed",                  "",    kAll,     kCritical, kFailedDisk,        kAnywhere        },
    {&kDiskState,        "missing",                 "",    kAll,     kCritical, kDiskGone,          kAnywhere        },
    {&kDiskState,        "offline",                 "ofl", kAll,     kCritical, kDiskOutOfService,  kAnywhere        },
    {&kDiskState,        "defunct hot spare",       "dhs", kQcmdrun, kWarning,  kSpareFailed,       kAnywhere        },
    {&kDiskState,        "failed hot spare",        "",    kNewer,   kWarning,  kSpareFailed,       kAnywhere        },
    {&kDiskState,        "unconfigured bad",        "",    kAll,     kWarning,  kUnusedDiskBad,     kAnywhere        },
    {&kDiskState,        "",                        "",    kAll,     kUnknown,  kNoState,           kOnHardDisk      },
    {&kDiskState,        "",                        "",    kAll,     kUnknown,  kUnknownType,       kOnUnknownType   },

    {&kPfa,              "no",                      "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kPfa,              "0",                       "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kPfa,              "yes",                     "",    kAll,     kWarning,  kPredicted,         kAnywhere        },
    {&kPfa,              "1",                       "",    kAll,     kWarning,  kPredicted,         kAnywhere        },

    {&kPfaCount,         "none",                    "",    kQcmdrun, kFine,     kNothing,           kAnywhere        },
    {&kPfaCount,         "some",                    "",    kQcmdrun, kWarning,  kPredicted,         kAnywhere        },

    {&kControllerStatus, "okay",                    "",    kNewer,   kFine,     kNothing,           kAnywhere        },
    {&kControllerStatus, "optimal",                 "",    kNewer,   kFine,     kNothing,           kAnywhere        },
    {&kControllerStatus, "failed",                  "",    kNewer,   kCritical, kFailedController,  kAnywhere        },
    {&kControllerStatus, "offline",                 "",    kNewer,   kCritical, kFailedController,  kAnywhere        },
    {&kControllerStatus, "critical",                "",    kNewer,   kCritical, kTrouble,           kAnywhere        },
    {&kControllerStatus, "degraded",                "",    kNewer,   kWarning,  kSomeTrouble,       kAnywhere        },
    {&kControllerStatus, "",                        "",    kNewer,   kUnknown,  kNoState,           kWithChannelLine },

    {&kDriveCounts,      "none",                    "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kDriveCounts,      "offline",                 "",    kAll,     kCritical, kCountsOffline,     kAnywhere        },
    {&kDriveCounts,      "critical",                "",    kAll,     kCritical, kCountsCritical,    kAnywhere        },

    {&kDefunct,          "none",                    "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kDefunct,          "some",                    "",    kAll,     kWarning,  kCountsDefunct,     kOnFailedSpares  },
    {&kDefunct,          "some",                    "",    kAll,     kCritical, kCountsDefunct,     kAnywhere        },

    {&kHeat,             "normal",                  "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kHeat,             "high",                    "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,             "warning",                 "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,             "abnormal",                "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,             "critical",                "",    kArcconf, kCritical, kVeryHot,           kAnywhere        },

    {&kBattery,          "okay",                    "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "optimal",                 "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "charged",                 "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "charging",                "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "not installed",           "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "not present",             "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "none",                    "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBattery,          "low",                     "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,          "discharging",             "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,          "missing",                 "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,          "degraded",                "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,          "failed",                  "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },

    {&kBatteryHeat,      "no",                      "",    kArcconf, kFine,     kNothing,           kAnywhere        },
    {&kBatteryHeat,      "yes",                     "",    kArcconf, kWarning,  kBatteryHot,        kAnywhere        },

    {&kOutcome,          "ok",                      "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kOutcome,          "refused",                 "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kOutcome,          "empty",                   "",    kAll,     kUnknown,  kReportedNone,      kOnConfiguration },
    {&kOutcome,          "empty",                   "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kOutcome,          "failed",                  "",    kAll,     kUnknown,  kMaybeWrong,        kOnState         },
    {&kOutcome,          "failed",                  "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kOutcome,          "cut off",                 "",    kAll,     kUnknown,  kCutOff,            kOnState         },
    {&kOutcome,          "cut off",                 "",    kAll,     kFine,     kNothing,           kAnywhere        },
    {&kOutcome,          "not asked",               "",    kAll,     kUnknown,  kNotAsked,          kAnywhere        },
    {&kOutcome,          "timed out",               "",    kAll,     kUnknown,  kHung,              kAnywhere        },
    {&kOutcome,          "not started",             "",    kAll,     kUnknown,  kNotRun,            kAnywhere        },
    {&kOutcome,          "not installed",           "",    kAll,     kFine,     kNothing,           kOnOptional      },
    {&kOutcome,          "not installed",           "",    kAll,     kUnknown,  kNotRun,            kAnywhere        },

    {&kAnswers,          "not published",           "",    kAll,     kUnknown,  kTooFew,            kAnywhere        },
    {&kAnswers,          "not recorded",            "",    kAll,     kUnknown,  kReplayEnded,       kAnywhere        },
    {&kAnswers,          "no tool is installed",    "",    kAll,     kUnknown,  kNothingKnown,      kAnywhere        },
    {&kAnswers,          "no tool was run",         "",    kAll,     kUnknown,  kNothingKnown,      kAnywhere        },

    {&kListed,           "not published",           "",    kAll,     kUnknown,  kUnread,            kAnywhere        },
    {&kListed,           "no carriage returns",     "",    kAll,     kUnknown,  kUnchecked,         kAnywhere        },

    {&kBaselinePresence, "missing",                 "",    kAll,     kCritical, kGone,              kAnywhere        },
    {&kBaselinePresence, "not known",               "",    kAll,     kUnknown,  kNotSeen,           kAnywhere        },

    {&kExpectedNumber,   "too few",                 "",    kAll,     kCritical, kFewerThanExpected, kAnywhere        },

    {&kLogText,          "collection aborted",      "",    kQcmdrun, kUnknown,  kCollectionEnded,   kAnywhere        },
    {&kLogText,          "status data is junk",     "",    kQcmdrun, kUnknown,  kLegacyEnded,       kAnywhere        },
    {&kLogText,          "bad stripe data is junk", "",    kQcmdrun, kUnknown,  kStripesEnded,      kAnywhere        },
    {&kLogText,          "getcontrollers() failed", "",    kAll,     kUnknown,  kNoneRead,          kAnywhere        },
    {&kLogText,          kLogNotRead,               "",    kAll,     kUnknown,  kEventsUnread,      kAnywhere        },
    {&kLogText,          kMismatch,                 "",    kArcconf, kWarning,  kUpdateDriver,      kAnywhere        },
};

constexpr EventSeverity kEventSeverities[] = {
    {"ERR", kCritical},
    {"FAT", kCritical},
    {"CRI", kCritical},
    {"WRN", kWarning },
    {"INF", kIdle    },
    {"DDD", kCritical}, // every record of the log of defunct drives, which names no severity
};

}  // namespace

std::span<const HealthRule> HealthRules() { return kRules; }
std::span<const EventSeverity> EventSeverities() { return kEventSeverities; }

const HealthRule& RuleFor(const WatchedValue& value, std::string_view word) {
  return *std::ranges::find_if(kRules,
                               [&](const HealthRule& rule) { return rule.value == &value && rule.word == word; });
}

}  // namespace hxahost
