#pragma once

#include <span>
#include <string_view>

#include "host/hxahost/views/instance_column.h"

// The contents of a controller's block, in their order: the most important first.
namespace hxahost {

// A property of the controller and its label in the block.
struct Fact {
  std::string_view label;
  std::string_view property;
};

std::span<const Fact> IdentityFacts();
std::span<const Fact> StateFacts();

// A class whose instances belong to a controller by its number.
struct DeviceKind {
  std::string_view className;
  std::string_view heading;
  std::span<const InstanceColumn> columns;
};

// The controllers themselves first; they have no columns.
std::span<const DeviceKind> DeviceKinds();

}  // namespace hxahost
