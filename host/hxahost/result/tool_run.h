#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/hxacore/host_services.h"
#include "host/hxahost/result/tool_answer.h"

namespace hxahost {

// One run of a utility: the command and its outcome.
struct ToolRun {
  std::string path;  // as the plug-in names it: "zenx//arcconf.exe"
  std::vector<std::string> arguments;
  double seconds = 0;
  std::optional<std::int64_t> exitStatus;  // empty: not started, ended by the system, or not known
  std::size_t bytes = 0;                   // of output
  Outcome outcome = Outcome::kOk;
  std::string failure;    // why it is not kOk, printable
  bool isReused = false;  // nothing was run: the answer is that of the same command before
};

// The runs of one query, in the order in which they were started.
using ToolRunList = std::vector<ToolRun>;

// "getconfig 1 al", printable.
std::string ArgumentsText(const ToolRun& run);

// Runs a program through the service and adds its outcome to the list. Exceptions of the service are passed on.
NKVRHXA20::SpawnResult SpawnAndRecord(const NKVRHXA20::SpawnFunction& spawn, const std::string& path,
                                      const std::vector<std::string>& arguments, int limitSeconds, ToolRunList& runs);

}  // namespace hxahost
