#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/schema.h"
#include "tools/known_tools.h"

namespace hxahost {

// A label that a property is printed under, and the table that has it.
struct LabelSource {
  std::string_view label;
  const AnswerLabels* answers = nullptr;
};

// The labels that the tool prints a property of a class under, in the order in which they are read.
std::vector<LabelSource> LabelsOf(const KnownTool& tool, std::string_view className, std::string_view property);

// Where a property of a class comes from: one line for each tool that prints it, with the labels that it is printed
// under, and one in words where labels do not say it all.
//   arcconf: "State", "Assigned Spare for"
// None for a class of which nothing is ever published.
std::vector<std::string> OriginLines(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration);

// The same as MOF has it, in the general form of such strings: a format, the body that defined it, and the place in
// what it maps, which for a label is the tool and the label.
//   Label.KVRSG|arcconf|State
//   Words.KVRSG|asked with getstatus
std::vector<std::string> MappingStrings(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration);

}  // namespace hxahost
