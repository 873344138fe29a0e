#pragma once

#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/machine/finding.h"
#include "host/hxahost/machine/state_words.h"

// What the words that the utilities print mean for the health of a machine.
namespace hxahost {

// A value that tells of health: a property of a class, and how its text is cut into words.
struct WatchedValue {
  std::string_view className;  // or kToolRun, kLog, kLeftOut: what is known beside the instances
  std::string_view property;
  Words (*cut)(std::string_view text);
};

inline constexpr std::string_view kToolRun = "tool run";
inline constexpr std::string_view kLog = "log";
inline constexpr std::string_view kLeftOut = "left out";
inline constexpr std::string_view kBaseline = "baseline";
inline constexpr std::string_view kExpectation = "expectation";

inline constexpr WatchedValue kDriveState = {"KVRSG_zxLogicalDisk", "LogicalDriveStatus", StateWords};
inline constexpr WatchedValue kControllerStatus = {"KVRSG_zxSCSIProtocolController", "ControllerStatus", StateWords};
inline constexpr WatchedValue kBattery = {"KVRSG_zxSCSIProtocolController", "ControllerBatteryStatus", StateWords};
inline constexpr WatchedValue kDiskState = {"KVRSG_zxDiskDrive", "State", StateWords};
inline constexpr WatchedValue kHeat = {"KVRSG_zxSCSIProtocolController", "ControllerTemp", BracketedWords};
// What is said of a controller that was not published.
inline constexpr WatchedValue kPresence = {kLeftOut, "ControllerNum", WholeText};
// How the run of a utility ended.
inline constexpr WatchedValue kOutcome = {kToolRun, "outcome", WholeText};
// Controllers that answered against those that were published.
inline constexpr WatchedValue kAnswers = {kToolRun, "controllers", WholeText};
// What became of an object that was there at the baseline.
inline constexpr WatchedValue kBaselinePresence = {kBaseline, "presence", WholeText};
// How many there are against how many are expected.
inline constexpr WatchedValue kExpectedNumber = {kExpectation, "number", WholeText};
// What the plug-in logged.
inline constexpr WatchedValue kLogText = {kLog, "text", LogHead};

// Where a rule holds.
enum class Where {
  kAnywhere,
  kOnHardDisk,        // not on tapes, enclosures, processors: some of them have no state
  kWithChannelLine,   // on controllers of utilities that print a status beside the description of the channel
  kOnUnguardedArray,  // on disks of a logical drive that is itself a finding
  kOnFailedSpares,    // on controllers on which nothing else has failed
  kOnConfiguration,   // on the answer that says which controllers and drives there are
  kOnState,           // on answers that states are read from, not on those that are only kept
  kOnOptional,        // on utilities that nobody expects
};

// One word and what it means. The first rule that names the word, or its code, and holds there, counts; a word that no
// rule names is unknown.
struct HealthRule {
  const WatchedValue* value;
  std::string_view word;   // as NormalWord gives it; "": the utility printed nothing
  std::string_view code;   // the short form that the legacy utility adds; "" where there is none
  std::string_view tools;  // which print it
  Level level;
  Meaning meaning;  // empty where it is fine
  Where where;
};

// Rules of one value follow each other; what matters most comes first.
std::span<const HealthRule> HealthRules();

// What the logs say of how bad an event is; a word that is not here is unknown.
struct EventSeverity {
  std::string_view word;
  Level level;
};

std::span<const EventSeverity> EventSeverities();

// The rule that names the word of a value; there must be one.
const HealthRule& RuleFor(const WatchedValue& value, std::string_view word);

}  // namespace hxahost
