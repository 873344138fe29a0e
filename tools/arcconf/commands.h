#pragma once

#include "collect/tool.h"

namespace arcconf {

// The logs are kept for people to read; nothing parses them.
constexpr ToolCommand kRecorded[] = {
    kGetConfig, {"getlogs", "device"},
     {"getlogs", "dead"  },
     {"getlogs", "event" },
     {"getlogs", "uart"  },
};

constexpr Tool kTool = {
    .name = "arcconf",
    .path = "zenx//arcconf.exe",
    .logPrefix = " ARCCONF  using Spawnprocess. Controller# :",
    .abortText = "ArcConf Aborted: ",
    .failedOutput = "",
    .noneFound = "Controllers found: 0",
    .notInUse = "Invalid controller number",
    .unreadable = "Driver Update Required",
    .recorded = kRecorded,
    .parsed = {},
    .recordsEmptyOutput = false,
};

}  // namespace arcconf
