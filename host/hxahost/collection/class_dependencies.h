#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// A class that the plug-in builds from instances of others, which must have been published before it.
struct ClassDependency {
  std::string_view name;
  std::vector<std::string_view> builtFrom;
};

std::span<const ClassDependency> ClassDependencies();

// One line for each class that is named without what it is built from before it; it will have no instance then, or
// not all. Names are the declared ones.
std::vector<std::string> MissingDependencies(const std::vector<std::string>& classes);

}  // namespace hxahost
