#pragma once

#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/machine/state_words.h"

// The meaning of the utilities' words for the health of a machine.
namespace hxahost {

// A value that health is read from: a property of a class, and how its text is cut into words.
struct WatchedValue {
  std::string_view className;  // or kToolRun, kLog, kLeftOut: facts that are not instances
  std::string_view property;
  Words (*cut)(std::string_view text);
};

inline constexpr std::string_view kToolRun = "tool run";
inline constexpr std::string_view kCollection = "collection";  // the object of a finding that is about all runs
inline constexpr std::string_view kLog = "log";
inline constexpr std::string_view kLeftOut = "left out";
inline constexpr std::string_view kBaseline = "baseline";
inline constexpr std::string_view kExpectation = "expectation";

inline constexpr WatchedValue kDriveState = {"KVRSG_zxLogicalDisk", "LogicalDriveStatus", StateWords};
inline constexpr WatchedValue kControllerStatus = {"KVRSG_zxSCSIProtocolController", "ControllerStatus", StateWords};
inline constexpr WatchedValue kBattery = {"KVRSG_zxSCSIProtocolController", "ControllerBatteryStatus", StateWords};
inline constexpr WatchedValue kDiskState = {"KVRSG_zxDiskDrive", "State", StateWords};
inline constexpr WatchedValue kHeat = {"KVRSG_zxSCSIProtocolController", "ControllerTemp", BracketedWords};
// Why a controller was not published.
inline constexpr WatchedValue kPresence = {kLeftOut, "ControllerNum", WholeText};
// How the run of a utility ended.
inline constexpr WatchedValue kOutcome = {kToolRun, "outcome", WholeText};
// The number of controllers that answered, compared with the number published.
inline constexpr WatchedValue kAnswers = {kToolRun, "controllers", WholeText};
// The number of logical drives and devices that a controller's answer lists, compared with the number published.
inline constexpr WatchedValue kListed = {kToolRun, "objects", WholeText};
// The state of an object that was there at the baseline.
inline constexpr WatchedValue kBaselinePresence = {kBaseline, "presence", WholeText};
// The number of objects, compared with the number expected.
inline constexpr WatchedValue kExpectedNumber = {kExpectation, "number", WholeText};
// An entry that the plug-in logged.
inline constexpr WatchedValue kLogText = {kLog, "text", LogHead};

// Where a rule applies.
enum class Where {
  kAnywhere,
  kOnHardDisk,        // not on tapes, enclosures, processors: some of them have no state
  kOnUnknownType,     // on devices of a type that the plug-in does not know: it reads no state of most of them
  kWithChannelLine,   // on controllers of utilities that print a status with the description of the channel
  kOnUnguardedArray,  // on disks of a logical drive that is itself a finding
  kOnFailedSpares,    // on controllers without any other failure
  kOnConfiguration,   // on the answer that lists the controllers and drives
  kOnState,           // on answers that states are read from, not on those that are only published as raw data
  kOnOptional,        // on utilities that are not expected
};

// One word and its meaning. The first rule that applies and names the word, or its code, is used; a word that no rule
// names is unknown.
struct HealthRule {
  const WatchedValue* value;
  std::string_view word;   // as NormalWord returns it; "": the utility printed nothing
  std::string_view code;   // the short form that the legacy utility adds; "" if it has none
  std::string_view tools;  // that print it
  Level level;
  Meaning meaning;  // empty if the level is fine
  Where where;
};

// Rules of one value follow each other; the most important come first.
std::span<const HealthRule> HealthRules();

// How bad an event is, by the word in the logs; a word that is not here is unknown.
struct EventSeverity {
  std::string_view word;
  Level level;
};

std::span<const EventSeverity> EventSeverities();

// The rule for the word of a value; it must exist.
const HealthRule& RuleFor(const WatchedValue& value, std::string_view word);

}  // namespace hxahost
