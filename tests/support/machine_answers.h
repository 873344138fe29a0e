#pragma once

#include <map>
#include <optional>
#include <string>

#include "host/hxahost/bundle/bundle.h"

// A machine as a person writes it: tests/machines/README.md describes the form.
struct MachineAnswers {
  std::map<std::string, hxahost::RecordedRun> runs;  // by the command, or by the tool for all of its commands
  std::optional<std::string> raidLog;
};

MachineAnswers ReadMachineAnswers(const std::string& text);

// The bundle that a collection on the machine would record; each run as often as any collection requests it.
hxahost::Bundle BundleOf(const MachineAnswers& answers);
