#pragma once

#include "collect/tool.h"

namespace hrconf {

constexpr ToolCommand kGetVersion = {"getversion", kNoOption};

constexpr ToolCommand kRecorded[] = {
    kGetConfig,
    {"getstatus", kNoOption},
    kGetVersion,
};
constexpr ToolCommand kParsed[] = {kGetVersion};

// Systems of version 6.0 are not asked for versions.
constexpr std::span<const ToolCommand> kRecordedOnOsVersion60 = std::span(kRecorded).first(2);

// The spelling of the log prefix is what people search their logs for.
constexpr Tool kTool = {
    .name = "hrconf_64",
    .path = "zenx//hrconf_64.exe",
    .logPrefix = " HRCCONF  using Spawnprocess. Controller# :",
    .abortText = "hrconf aborted: ",
    .failedOutput = "",
    .noneFound = "Controllers found: 0",
    .notInUse = "Invalid controller number",
    .unreadable = "",
    .recorded = kRecorded,
    .parsed = kParsed,
    .recordsEmptyOutput = true,
};

}  // namespace hrconf
