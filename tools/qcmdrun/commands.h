#pragma once

#include "collect/tool.h"

namespace qcmdrun {

constexpr ToolCommand kGetStatus = {"getstatus", "device"};
constexpr ToolCommand kGetBadStripes = {"getbst", "device"};
constexpr ToolCommand kGetDeviceEvents = {"getevent", "device"};
constexpr ToolCommand kGetDddEvents = {"getevent", "ddd"};
constexpr ToolCommand kGetSoftEvents = {"getevent", "soft"};
constexpr ToolCommand kGetHardEvents = {"getevent", "hard"};
constexpr ToolCommand kGetSubStats = {"getsubstat", "device"};

constexpr ToolCommand kRecorded[] = {
    kGetConfig,    kGetStatus,     kGetBadStripes, kGetDeviceEvents,
    kGetDddEvents, kGetSoftEvents, kGetHardEvents, kGetSubStats,
};
constexpr ToolCommand kParsed[] = {
    kGetStatus, kGetBadStripes, kGetDeviceEvents, kGetDddEvents, kGetSoftEvents, kGetHardEvents, kGetSubStats,
};

// A failed run yields text, so that it is neither taken for the end of the controllers nor left out of the record.
constexpr Tool kTool = {
    .name = "qcmdrun",
    .path = "zenx//qcmdrun.exe",
    .logPrefix = " QCMDRUN is using Spawnprocess. Controller# :",
    .abortText = "Qcmdrun aborted: ",
    .failedOutput = "not valid data - ",
    .noneFound = "Found 0 KVR Zentraxis controller(s)",
    .notInUse = "Command aborted",
    .unreadable = "",
    .recorded = kRecorded,
    .parsed = kParsed,
    .recordsEmptyOutput = false,
};

}  // namespace qcmdrun
