#pragma once

#include <map>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "tests/support/recording_log.h"

// Replaces the services while it exists: tools answer from a script, files come from a map, the clock does not move.
// The destructor restores the real services.
class ScriptedServices {
 public:
  ScriptedServices();
  ~ScriptedServices();
  ScriptedServices(const ScriptedServices&) = delete;
  ScriptedServices& operator=(const ScriptedServices&) = delete;

  // The output of a command, by tool name and arguments: "qcmdrun getconfig 1 al". A command that is not here cannot be
  // started: THXAException("<path> is not here").
  std::map<std::string, std::string> answers;

  // Files by the path that CaptureFile receives. Other files cannot be read.
  std::map<std::string, std::string> files;

  std::string machineName = "MACHINE";
  NKVRHXA20::TCIMDateTime localTime{2026, 3, 5, 12, 30, 15, 250000, 60};

  // The calls so far, in order.
  std::vector<std::string> runs;  // the keys of answers, whether answered or not
  std::vector<LogEntry> log;

  // The texts of the log.
  std::vector<std::string> LogTexts() const;
};
