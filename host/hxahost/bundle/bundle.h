#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/spawn_result.h"
#include "platform/recorded_system.h"
#include "plugin/host_interface/date_time.h"

// A bundle: everything that a collection received from the machine, so that it can be repeated anywhere.
namespace hxahost {

// An exception of a service, instead of an answer.
enum class FailureKind {
  kNotInstalled,
  kNotAsked,
  kNotStarted,
  kTooLong,
  kNotEnded,
  kTooMuchOutput,
  kNotOpened,  // a file
  kHost,       // any other exception of the host, which plug-ins expect
  kOther,      // an exception that no plug-in expects, such as no memory
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
  NKVRHXA20::SpawnResult result;  // only its seconds if the run failed
  std::optional<RecordedFailure> failure;
};

// Returns the result of the run, or throws the recorded exception with the same message.
NKVRHXA20::SpawnResult Repeat(const RecordedRun& run);

// Throws the exception of a service, after a run of that duration.
[[noreturn]] void Throw(const RecordedFailure& failure, double seconds = 0);

// "zenx//arcconf.exe getconfig 1 al", unescaped.
std::string CommandText(const RecordedRun& run);

// The RAID manager's log, if it existed.
struct RecordedLog {
  std::string path;
  std::string bytes;
  std::optional<RecordedFailure> failure;  // why it was not opened, or not read to its end
};

// A reading of the clock, and how often it occurs in a row: several readings fall within one tick.
struct RecordedTime {
  NKVRHXA20::TCIMDateTime time;
  std::size_t count = 1;
};

// Texts are bytes as received, except those marked UTF-8.
struct Bundle {
  std::string program;  // the version that recorded it
  bool isMasked = false;
  std::string machine;
  std::string directory;  // the working directory of the tools, UTF-8
  std::optional<std::uint16_t> osType;
  OsVersion osVersion;
  std::optional<std::string> raidLogDir;  // empty: the registry has no such value
  std::vector<RecordedTime> localTimes;   // the readings of the clock, in order
  std::vector<double> querySeconds;       // of each query that finished
  std::vector<RecordedRun> runs;          // in the order in which they were started
  std::optional<RecordedLog> raidLog;
};

// What is passed to the plug-in about the system in a replay. The bytes of the log stay in the bundle.
RecordedSystem SystemOf(const std::shared_ptr<const Bundle>& bundle);

// The items of a bundle are counted from 1: the runs, then the log.
std::size_t ItemCount(const Bundle& bundle);

}  // namespace hxahost
