#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// A class that the plug-in builds from instances of other classes, which must be published before it.
struct ClassDependency {
  std::string_view name;
  std::vector<std::string_view> builtFrom;
};

std::span<const ClassDependency> ClassDependencies();

// One line for each class that is queried without the classes that it is built from before it; it will then lack some
// or all instances. Names are the declared ones.
std::vector<std::string> MissingDependencies(const std::vector<std::string>& classes);

}  // namespace hxahost
