#pragma once

#include <span>
#include <string_view>

// Our classes under those of the DMTF, for repositories that contain its schema.
namespace hxahost {

// A class of the DMTF from which classes of ours are derived.
struct Superclass {
  std::string_view name;
  std::span<const std::string_view> declares;  // what classes of ours declare again
  std::string_view missing;                    // what it has a place for or asks for, and the tools do not provide
};

// Every class from which one of ours is derived.
std::span<const Superclass> Superclasses();

// Null for a class that none fits.
const Superclass* SuperclassOf(std::string_view className);

}  // namespace hxahost
