#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"

// Finds objects by the names that people use.
namespace hxahost {

// An object and the short name that selects it: "C4", "C4 LD3", "C4 array A", "C4 enclosure 0, slot 8".
struct NamedObject {
  std::string_view className;
  const Object* object = nullptr;
  std::string handle;  // bytes as the tools printed them
};

struct ObjectSearch {
  std::vector<NamedObject> found;
  std::vector<NamedObject> near;  // if nothing was found: objects with a similar name
};

// Finds the objects with this name, in upper or lower case: an identifier, serial number or name, or a place on the
// machine ("C4 slot 8", "controller 4, logical drive 3", "enclosure 0, slot 8"). The tool distinguishes controllers
// with one number: "C3 (arcconf)".
ObjectSearch FindObjects(const Machine& machine, const InstanceList& instances, std::string_view what);

}  // namespace hxahost
