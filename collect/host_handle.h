#pragma once

#include <string>

namespace NKVRHXA20 {
class ILogger;
}

// What records and adapters know of the host: its log, and nothing else.
using HostHandle = NKVRHXA20::ILogger*;

// Levels of the log. Most of what the plug-in has to say is routine.
constexpr int kLogSevere = 0;
constexpr int kLogProblem = 1;
constexpr int kLogWarning = 2;
constexpr int kLogRoutine = 3;
constexpr int kLogForEngineer = 100;
constexpr int kLogForEngineerInFull = 101;

// Writes one line to the host's log.
void Log(HostHandle host, int level, const std::string& text);
