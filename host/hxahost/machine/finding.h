#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// How bad something is. The numbers are the exit statuses of monitoring plug-ins.
enum class Severity { kFine = 0, kWarning = 1, kCritical = 2, kUnknown = 3 };

// The state of an object, as its symbol and colour show it. From the best to the worst; up to kBusy it is fine. A known
// fault is worse than a possible one.
enum class Level {
  kUnsaid,  // the utility printed no state, and is not expected to
  kFine,
  kIdle,  // a spare or unused
  kBusy,  // at work: a rebuild, a migration, ...
  kUnknown,
  kWarning,
  kCritical,
};

Severity SeverityOf(Level level);
Level LevelOf(Severity severity);

// "ok", "warning", "critical", "unknown"; for levels also "unsaid", "idle", "busy".
std::string_view LevelWord(Level level);
std::string_view SeverityWord(Severity severity);

// Critical is worse than warning, warning than unknown, unknown than fine.
bool IsWorse(Severity left, Severity right);

// The effect of a finding on its object: it decides which findings have one cause.
enum class Effect {
  kOther,
  kUnreachable,  // the data of a logical drive
  kDegraded,     // a logical drive tolerates fewer disk failures than configured
  kRebuilding,   // a logical drive or disk
  kBadStripes,   // of a logical drive
  kSegment,      // of a logical drive, on a disk that it names
  kDiskFailed,
  kDiskMissing,
  kPredicted,  // the failure of a disk
  kErrors,     // counted on a disk
  kCounted,    // by a controller: the failure of an object that reports it itself
  kController,
  kUnread,     // an object, or some objects of a controller
  kUnchecked,  // whether all objects of a controller were read
  kHeat,
  kBattery,
};

// The meaning of a value and the action to take.
struct Meaning {
  std::string_view what;
  std::string_view action = "";
  Effect effect = Effect::kOther;

  bool operator==(const Meaning&) const = default;
};

// "Replace it: the disk has failed".
std::string TextOf(const Meaning& meaning);

// One thing that is wrong, or whose state is not known.
struct Finding {
  Severity severity = Severity::kUnknown;
  std::string className;   // of the instance that reports it; "tool run" or "log" if none does
  std::string identifier;  // "DeviceID" or "InstanceID" of the instance, or the tool's name
  std::string name;        // for people: "logical drive 3 (Archive) of controller 4"
  std::string property;
  std::string text;  // as the tool printed it, bytes, without the white space at both ends
  Meaning meaning;
  std::optional<std::size_t> instance = {};  // the place of the instance among those of the query
};

using Findings = std::vector<Finding>;

// The worst severity of the findings; fine if there are none.
Severity WorstOf(const Findings& findings);

}  // namespace hxahost
