#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/finding.h"

namespace hxahost {

// A device by its places in the lists of the machine and of its controller. A missing disk has the number of
// controllers, and its place in Machine::missingDisks.
struct DeviceRef {
  std::size_t controller = 0;
  std::size_t device = 0;
};

// The kind of action that an incident needs, the most urgent first.
enum class Urgency { kRestore, kReplace, kWait, kOther };

// One cause of trouble with all of its findings. Texts are printable.
struct Incident {
  Severity severity = Severity::kFine;  // the worst of its findings; fine: for information
  Urgency urgency = Urgency::kOther;
  // The identifier of the object: programs recognise the incident by it from one collection to the next.
  std::string subject;
  std::string name;                   // of the subject: "logical drive 3 (Archive) of controller 4"
  std::string headline;               // "C4 \"Archive\" (RAID 5) is degraded"
  std::string location;               // of the first disk to act on: "enclosure 0, slot 8"; "" if there is none
  std::string action;                 // an instruction
  std::vector<DeviceRef> disks;       // to act on
  std::vector<std::size_t> findings;  // places in Machine::findings; each finding is in one incident
  std::size_t controller = 0;         // place in Machine::controllers; their number if it is about no controller
};

using Incidents = std::vector<Incident>;

// "critical", "warning", "unknown", "info".
std::string_view IncidentWord(const Incident& incident);

}  // namespace hxahost
