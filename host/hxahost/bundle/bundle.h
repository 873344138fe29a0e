#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/spawn_result.h"
#include "platform/recorded_system.h"
#include "plugin/host_interface/date_time.h"

// A bundle: everything that a collection received from the machine, so that it can be repeated anywhere.
namespace hxahost {

// What a service threw in place of an answer.
enum class FailureKind {
  kNotInstalled,
  kNotAsked,
  kNotStarted,
  kTooLong,
  kTooMuchOutput,
  kHost,   // any other failure of the host's own kind, which plug-ins expect
  kOther,  // what no plug-in expects, such as no memory
};

struct RecordedFailure {
  FailureKind kind = FailureKind::kHost;
  std::string message;
};

// One run of a tool.
struct RecordedRun {
  std::string path;
  std::vector<std::string> arguments;
  int limitSeconds = 0;
  NKVRHXA20::SpawnResult result;  // its seconds alone where it failed
  std::optional<RecordedFailure> failure;
};

// What the run gave: its result, or what the service threw, with the same message.
NKVRHXA20::SpawnResult Repeat(const RecordedRun& run);

// Throws what the service threw after a run of so many seconds.
[[noreturn]] void Throw(const RecordedFailure& failure, double seconds = 0);

// "zenx//arcconf.exe getconfig 1 al", as it is.
std::string CommandText(const RecordedRun& run);

// The RAID manager's log, where it was there to be opened.
struct RecordedLog {
  std::string path;
  std::string bytes;
  std::optional<RecordedFailure> failure;  // why it could not be captured, although it could be opened
};

// What the clock said, and how often in a row: many times are asked for within one of its ticks.
struct RecordedTime {
  NKVRHXA20::TCIMDateTime time;
  std::size_t count = 1;
};

// All texts are bytes as they were, but for those that say UTF-8.
struct Bundle {
  std::string program;  // the version that recorded it
  bool isMasked = false;
  std::string machine;
  std::string directory;  // the working directory of the tools, UTF-8
  std::optional<std::uint16_t> osType;
  OsVersion osVersion;
  std::optional<std::string> raidLogDir;  // nothing: the registry has no such value
  std::vector<RecordedTime> localTimes;   // what the clock said, in order
  std::vector<double> querySeconds;       // of each query that came to its end
  std::vector<RecordedRun> runs;          // in the order in which they were started
  std::optional<RecordedLog> raidLog;
};

// What is passed to the plug-in about the system in a replay.
RecordedSystem SystemOf(const Bundle& bundle);

// The items of a bundle are counted from 1: the runs, then the log.
std::size_t ItemCount(const Bundle& bundle);

}  // namespace hxahost
