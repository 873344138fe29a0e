#pragma once

#include "tools/arcconf/commands.h"
#include "tools/arcconf/labels.h"
#include "tools/hrconf/commands.h"
#include "tools/hrconf/labels.h"
#include "tools/qcmdrun/commands.h"
#include "tools/qcmdrun/labels.h"

// A tool, and all labels that are read in its answers.
struct KnownTool {
  Tool tool;
  std::span<const AnyLabelTable> labels;
};

// In the order in which they are run.
constexpr KnownTool kKnownTools[] = {
    {qcmdrun::kTool, qcmdrun::kLabels},
    {hrconf::kTool,  hrconf::kLabels },
    {arcconf::kTool, arcconf::kLabels},
};
