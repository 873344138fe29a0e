#pragma once

#include <span>
#include <string_view>

// Our classes under those of the DMTF, for repositories that contain its schema.
namespace hxahost {

// A class of the DMTF from which classes of ours are derived.
struct Superclass {
  std::string_view name;
  std::span<const std::string_view> declares;  // inherited properties that our classes declare again
  std::string_view missing;                    // properties that it has or requires, and the tools do not provide
};

// Every class from which one of ours is derived.
std::span<const Superclass> Superclasses();

// Null for a class without a superclass.
const Superclass* SuperclassOf(std::string_view className);

}  // namespace hxahost
