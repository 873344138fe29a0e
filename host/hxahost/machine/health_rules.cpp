#include "host/hxahost/machine/health_rules.h"

#include <algorithm>

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
constexpr auto kWithChannelLine = Where::kWithChannelLine;
constexpr auto kOnUnguardedArray = Where::kOnUnguardedArray;
constexpr auto kOnConfiguration = Where::kOnConfiguration;
constexpr auto kOnState = Where::kOnState;

constexpr WatchedValue kAccess = {kLogicalDiskClass, "AccessBlocked", FirstWord};
constexpr WatchedValue kSegments = {kLogicalDiskClass, "DefunctSegments", FirstWord};
constexpr WatchedValue kStripes = {"KVRSG_BadStripeData", "NumBadStripes", CountWords};
constexpr WatchedValue kDriveCounts = {kControllerClass, "LogicalDriveStatusCnt", DriveCountWords};
constexpr WatchedValue kDefunct = {kControllerClass, "DefunctDiskDriveCnt", CountWords};
constexpr WatchedValue kHeat = {kControllerClass, "ControllerTemp", BracketedWords};
constexpr WatchedValue kBatteryHeat = {kControllerClass, "ControllerBatteryOverTemp", FirstWord};
constexpr WatchedValue kPfa = {kDiskDriveClass, "PFA", FirstWord};
constexpr WatchedValue kPfaCount = {"KVRSG_zxSCSIDeviceData", "PFA", CountWords};

constexpr std::string_view kAll = "every utility";
constexpr std::string_view kNewer = "arcconf, hrconf_64";

// What findings mean, and what is to be done.
constexpr std::string_view kDataGone = "its data cannot be reached; replace what has failed and restore from a backup";
constexpr std::string_view kUnguarded = "one more failed disk loses its data; replace the failed disk now";
constexpr std::string_view kFailedDisk = "the disk has failed; replace it";
constexpr std::string_view kFailedController = "the controller has failed; replace it";
constexpr std::string_view kNoState = "the utility printed no state";
constexpr std::string_view kWeakBattery = "the cache is not safe when the power fails; replace the battery";
constexpr std::string_view kPredicted = "the disk predicts that it will fail; replace it soon";

constexpr std::string_view kLeftOutController =
    "drives name the controller, but it was left out, as one whose status is Failed is; replace it";
constexpr std::string_view kLessGuarded = "it bears fewer failed disks than it should; replace the failed one";
constexpr std::string_view kDriveRebuilt = "it is not guarded until the rebuild is done; wait for its end";
constexpr std::string_view kDataLost = "data was lost in these stripes; restore the logical drive from a backup";
constexpr std::string_view kNoCount = "the utility printed no count";
constexpr std::string_view kRefusesAccess = "the controller refuses access to it, as it does after data was lost";
constexpr std::string_view kSegmentGone = "a segment of it lies on a failed or missing disk; replace the disk";
constexpr std::string_view kDiskRebuilt = "it is being rebuilt, and its array is not guarded until that is done";
constexpr std::string_view kDiskGone = "the disk is not there any more; see whether it was pulled, or replace it";
constexpr std::string_view kDiskOutOfService = "the disk was taken out of service; replace it";
constexpr std::string_view kSpareFailed =
    "the hot spare has failed: nothing stands in for the next failed disk; replace it";
constexpr std::string_view kUnusedDiskBad = "the disk is unusable, though no array needs it; replace it";
constexpr std::string_view kTrouble = "the controller is in trouble; see its event log";
constexpr std::string_view kSomeTrouble = "the controller does not work as it should; see its event log";
constexpr std::string_view kCountsOffline = "the controller counts logical drives that are offline: the second number";
constexpr std::string_view kCountsCritical =
    "the controller counts logical drives that one more failed disk ends: the third number";
constexpr std::string_view kCountsDefunct = "the controller counts failed disks; replace them";
constexpr std::string_view kHot = "the controller is too hot; see to the cooling";
constexpr std::string_view kVeryHot = "the controller is too hot; see to the cooling now";
constexpr std::string_view kBatteryHot = "the battery is too hot; see to the cooling";
constexpr std::string_view kSaidNothing = "it said nothing of its controllers";
constexpr std::string_view kMaybeWrong = "what it said may not be the whole truth";
constexpr std::string_view kBehindTheCut = "what stood behind the cut is not known";
constexpr std::string_view kHung =
    "it hung, as it does when a controller does not answer; its controllers are not seen";
constexpr std::string_view kNotRun =
    "its controllers are not seen; put it into the folder zenx, and see that it may be run";
constexpr std::string_view kTooFew = "fewer controllers were published than answered; those left out are not seen";
constexpr std::string_view kNothingKnown = "nothing is known of this machine";
constexpr std::string_view kCollectionEnded = "what would have been collected from there on is not seen";
constexpr std::string_view kLegacyEnded = "this controller and those after it are not seen";
constexpr std::string_view kStripesEnded = "bad stripes from there on are not seen";
constexpr std::string_view kNoneRead = "no controller was published";
constexpr std::string_view kUpdateDriver = "this controller and those after it are not seen; update the driver";

// How the log begins to tell of a driver that is too old for arcconf.
constexpr std::string_view kMismatch =
    "a zentraxis c4, c5, c6/c6 e or b3 is present, but there is a driver and firmware mismatch";

constexpr HealthRule kRules[] = {
    {&kPresence,    "not published",           "",    kAll,     kCritical, kLeftOutController, kAnywhere        },
    {&kPresence,    "failed",                  "",    kAll,     kCritical, kFailedController,  kAnywhere        },

    {&kDriveState,  "okay",                    "oky", kAll,     kFine,     "",                 kAnywhere        },
    {&kDriveState,  "optimal",                 "",    kNewer,   kFine,     "",                 kAnywhere        },
    {&kDriveState,  "free",                    "fre", kQcmdrun, kIdle,     "",                 kAnywhere        },
    {&kDriveState,  "system",                  "sys", kQcmdrun, kIdle,     "",                 kAnywhere        },
    {&kDriveState,  "logical drive migration", "ldm", kQcmdrun, kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "building",                "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "clearing",                "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "expanding",               "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "initializing",            "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "migrating",               "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "synchronizing",           "",    kAll,     kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "verifying",               "",    kNewer,   kBusy,     "",                 kAnywhere        },
    {&kDriveState,  "offline",                 "ofl", kAll,     kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,  "failed",                  "",    kNewer,   kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,  "missing",                 "",    kNewer,   kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,  "blocked",                 "blk", kQcmdrun, kCritical, kDataGone,          kAnywhere        },
    {&kDriveState,  "critical",                "crt", kAll,     kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,  "critical system",         "csy", kQcmdrun, kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,  "critical migration",      "crm", kQcmdrun, kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,  "degraded",                "",    kAll,     kCritical, kUnguarded,         kAnywhere        },
    {&kDriveState,  "impacted",                "",    kNewer,   kWarning,  kLessGuarded,       kAnywhere        },
    {&kDriveState,  "suboptimal",              "",    kNewer,   kWarning,  kLessGuarded,       kAnywhere        },
    {&kDriveState,  "rebuild",                 "rbl", kAll,     kWarning,  kDriveRebuilt,      kAnywhere        },
    {&kDriveState,  "rebuilding",              "",    kAll,     kWarning,  kDriveRebuilt,      kAnywhere        },
    {&kDriveState,  "",                        "",    kAll,     kUnknown,  kNoState,           kAnywhere        },

    {&kStripes,     "none",                    "",    kQcmdrun, kFine,     "",                 kAnywhere        },
    {&kStripes,     "some",                    "",    kQcmdrun, kCritical, kDataLost,          kAnywhere        },
    {&kStripes,     "",                        "",    kQcmdrun, kUnknown,  kNoCount,           kAnywhere        },

    {&kAccess,      "no",                      "",    kQcmdrun, kFine,     "",                 kAnywhere        },
    {&kAccess,      "yes",                     "",    kQcmdrun, kCritical, kRefusesAccess,     kAnywhere        },

    {&kSegments,    "no",                      "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kSegments,    "none",                    "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kSegments,    "yes",                     "",    kArcconf, kWarning,  kSegmentGone,       kAnywhere        },

    {&kDiskState,   "online",                  "onl", kAll,     kFine,     "",                 kAnywhere        },
    {&kDiskState,   "optimal",                 "",    kNewer,   kFine,     "",                 kAnywhere        },
    {&kDiskState,   "okay",                    "oky", kAll,     kFine,     "",                 kAnywhere        },
    {&kDiskState,   "ready",                   "rdy", kAll,     kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "available",               "",    kNewer,   kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "raw",                     "",    kNewer,   kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "unconfigured",            "",    kAll,     kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "unconfigured good",       "",    kAll,     kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "empty",                   "emp", kQcmdrun, kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "standby",                 "sby", kAll,     kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "hot spare",               "hsp", kAll,     kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "standby hot spare",       "shs", kQcmdrun, kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "dedicated hot spare",     "",    kNewer,   kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "global hot spare",        "",    kNewer,   kIdle,     "",                 kAnywhere        },
    {&kDiskState,   "rebuild",                 "rbl", kAll,     kWarning,  kDiskRebuilt,       kOnUnguardedArray},
    {&kDiskState,   "rebuilding",              "",    kAll,     kWarning,  kDiskRebuilt,       kOnUnguardedArray},
    {&kDiskState,   "rebuild",                 "rbl", kAll,     kBusy,     "",                 kAnywhere        },
    {&kDiskState,   "rebuilding",              "",    kAll,     kBusy,     "",                 kAnywhere        },
    {&kDiskState,   "defunct",                 "ddd", kQcmdrun, kCritical, kFailedDisk,        kAnywhere        },
    {&kDiskState,   "failed",                  "",    kAll,     kCritical, kFailedDisk,        kAnywhere        },
    {&kDiskState,   "missing",                 "",    kAll,     kCritical, kDiskGone,          kAnywhere        },
    {&kDiskState,   "offline",                 "ofl", kAll,     kCritical, kDiskOutOfService,  kAnywhere        },
    {&kDiskState,   "defunct hot spare",       "dhs", kQcmdrun, kWarning,  kSpareFailed,       kAnywhere        },
    {&kDiskState,   "failed hot spare",        "",    kNewer,   kWarning,  kSpareFailed,       kAnywhere        },
    {&kDiskState,   "unconfigured bad",        "",    kAll,     kWarning,  kUnusedDiskBad,     kAnywhere        },
    {&kDiskState,   "",                        "",    kAll,     kUnknown,  kNoState,           kOnHardDisk      },

    {&kPfa,         "no",                      "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kPfa,         "0",                       "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kPfa,         "yes",                     "",    kAll,     kWarning,  kPredicted,         kAnywhere        },
    {&kPfa,         "1",                       "",    kAll,     kWarning,  kPredicted,         kAnywhere        },

    {&kPfaCount,    "none",                    "",    kQcmdrun, kFine,     "",                 kAnywhere        },
    {&kPfaCount,    "some",                    "",    kQcmdrun, kWarning,  kPredicted,         kAnywhere        },

    {&kStatus,      "okay",                    "",    kNewer,   kFine,     "",                 kAnywhere        },
    {&kStatus,      "optimal",                 "",    kNewer,   kFine,     "",                 kAnywhere        },
    {&kStatus,      "failed",                  "",    kNewer,   kCritical, kFailedController,  kAnywhere        },
    {&kStatus,      "offline",                 "",    kNewer,   kCritical, kFailedController,  kAnywhere        },
    {&kStatus,      "critical",                "",    kNewer,   kCritical, kTrouble,           kAnywhere        },
    {&kStatus,      "degraded",                "",    kNewer,   kWarning,  kSomeTrouble,       kAnywhere        },
    {&kStatus,      "",                        "",    kNewer,   kUnknown,  kNoState,           kWithChannelLine },

    {&kDriveCounts, "none",                    "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kDriveCounts, "offline",                 "",    kAll,     kCritical, kCountsOffline,     kAnywhere        },
    {&kDriveCounts, "critical",                "",    kAll,     kCritical, kCountsCritical,    kAnywhere        },

    {&kDefunct,     "none",                    "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kDefunct,     "some",                    "",    kAll,     kCritical, kCountsDefunct,     kAnywhere        },

    {&kHeat,        "normal",                  "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kHeat,        "high",                    "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,        "warning",                 "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,        "abnormal",                "",    kArcconf, kWarning,  kHot,               kAnywhere        },
    {&kHeat,        "critical",                "",    kArcconf, kCritical, kVeryHot,           kAnywhere        },

    {&kBattery,     "okay",                    "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "optimal",                 "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "charged",                 "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "charging",                "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "not installed",           "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "not present",             "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "none",                    "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBattery,     "low",                     "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,     "discharging",             "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,     "missing",                 "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,     "degraded",                "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },
    {&kBattery,     "failed",                  "",    kArcconf, kWarning,  kWeakBattery,       kAnywhere        },

    {&kBatteryHeat, "no",                      "",    kArcconf, kFine,     "",                 kAnywhere        },
    {&kBatteryHeat, "yes",                     "",    kArcconf, kWarning,  kBatteryHot,        kAnywhere        },

    {&kOutcome,     "ok",                      "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kOutcome,     "refused",                 "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kOutcome,     "empty",                   "",    kAll,     kUnknown,  kSaidNothing,       kOnConfiguration },
    {&kOutcome,     "empty",                   "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kOutcome,     "failed",                  "",    kAll,     kUnknown,  kMaybeWrong,        kOnState         },
    {&kOutcome,     "failed",                  "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kOutcome,     "cut off",                 "",    kAll,     kUnknown,  kBehindTheCut,      kOnState         },
    {&kOutcome,     "cut off",                 "",    kAll,     kFine,     "",                 kAnywhere        },
    {&kOutcome,     "timed out",               "",    kAll,     kWarning,  kHung,              kAnywhere        },
    {&kOutcome,     "not started",             "",    kAll,     kUnknown,  kNotRun,            kAnywhere        },

    {&kAnswers,     "not published",           "",    kAll,     kUnknown,  kTooFew,            kAnywhere        },
    {&kAnswers,     "no tool was run",         "",    kAll,     kUnknown,  kNothingKnown,      kAnywhere        },

    {&kLogText,     "collection aborted",      "",    kQcmdrun, kUnknown,  kCollectionEnded,   kAnywhere        },
    {&kLogText,     "status data is junk",     "",    kQcmdrun, kUnknown,  kLegacyEnded,       kAnywhere        },
    {&kLogText,     "bad stripe data is junk", "",    kQcmdrun, kUnknown,  kStripesEnded,      kAnywhere        },
    {&kLogText,     "getcontrollers() failed", "",    kAll,     kUnknown,  kNoneRead,          kAnywhere        },
    {&kLogText,     kMismatch,                 "",    kArcconf, kWarning,  kUpdateDriver,      kAnywhere        },
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
