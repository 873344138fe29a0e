#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/schema.h"
#include "tools/known_tools.h"

namespace hxahost {

// A label that a property is read from, and the table that contains it.
struct LabelSource {
  std::string_view label;
  const AnswerLabels* answers = nullptr;
};

// The labels from which a property of a class is read in the tool's output, in reading order.
std::vector<LabelSource> LabelsOf(const KnownTool& tool, std::string_view className, std::string_view property);

// The origins of a property: one line for each tool that prints it, with its labels, and a line in words if labels do
// not explain everything.
//   arcconf: "State", "Assigned Spare for"
// Empty for a class that is never published.
std::vector<std::string> OriginLines(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration);

// The same for MOF, in the general form of such strings: a format, the body that defined it, and the place in the
// source, which for a label is the tool and the label.
//   Label.KVRSG|arcconf|State
//   Words.KVRSG|asked with getstatus
std::vector<std::string> MappingStrings(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration);

}  // namespace hxahost
