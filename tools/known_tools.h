#pragma once

#include "tools/arcconf/commands.h"
#include "tools/arcconf/labels.h"
#include "tools/hrconf/commands.h"
#include "tools/hrconf/labels.h"
#include "tools/qcmdrun/commands.h"
#include "tools/qcmdrun/labels.h"

// A tool, and all that is read in its answers.
struct KnownTool {
  Tool tool;
  std::span<const AnswerLabels> labels;
  std::string_view deviceHead;  // begins a device
  std::span<const ModelName> models;
};

// In the order in which they are run.
constexpr KnownTool kKnownTools[] = {
    {qcmdrun::kTool, qcmdrun::kLabels, qcmdrun::kTargetLabel, qcmdrun::kModels},
    {hrconf::kTool,  hrconf::kLabels,  kDeviceNumberLabel,    {}              },
    {arcconf::kTool, arcconf::kLabels, kDeviceNumberLabel,    arcconf::kModels},
};
