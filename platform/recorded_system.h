#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/os_version.h"

// What the system of a machine answered when a collection was recorded on it.
struct RecordedSystem {
  OsVersion version;
  std::optional<std::string> raidLogDir;       // the registry's value; empty if it has none
  std::shared_ptr<const std::string> raidLog;  // the bytes of the RAID manager's log; null if it cannot be opened
  std::string raidLogRefusal = {};             // why it is not opened although it exists; otherwise ""
};

// The beginning of the entry in the plug-in's log about a RAID manager's log that is not opened. The path, ": ", the
// reason and a full stop follow.
inline constexpr const char* kRaidLogNotRead = "RAID manager log not read: ";

// From now on these answers are used instead of the system's; if empty, the system answers.
void AnswerAs(std::optional<RecordedSystem> recorded);

// What answers in the place of the system; null where the system does.
const RecordedSystem* AnswersInPlace();

// What a plug-in offers to a host that replays, beside the host's interface. Other hosts do not ask for it.
class IReplaysSystem {
 public:
  virtual void AnswerAs(const RecordedSystem& recorded) = 0;

 protected:
  ~IReplaysSystem() = default;
};
