#pragma once

#include <cstddef>

#include "host/hxacore/host_services.h"

enum class ScriptedTool { kQcmdrun, kArcconf, kHrconf };

// Services in which one utility answers for one controller with so many disks, and the others for none. The texts are
// made once, and copied for every run. textCollected, where given, counts the bytes of all answers.
NKVRHXA20::HostServices ScriptedMachine(ScriptedTool tool, int disks, std::size_t* textCollected = nullptr);
