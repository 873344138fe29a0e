#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxacore/schema.h"

namespace hxahost {

// Where a property of a class comes from: one line for each tool that prints it, with the labels that it is printed
// under, and one in words where labels do not say it all.
//   arcconf: "State", "Assigned Spare for"
// None for a class of which nothing is ever published.
std::vector<std::string> OriginLines(std::string_view className, const NKVRHXA20::PropertyDeclaration& declaration);

}  // namespace hxahost
