#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/machine/machine.h"

// Objects by what people call them.
namespace hxahost {

// An object and what it is asked for by: "C4", "C4 LD3", "C4 array A", "C4 enclosure 0, slot 8".
struct NamedObject {
  std::string_view className;
  const Object* object = nullptr;
  std::string handle;  // bytes as the tools printed them
};

struct ObjectSearch {
  std::vector<NamedObject> found;
  std::vector<NamedObject> near;  // where nothing was found: what may have been meant
};

// Finds what is called so, in any case: by its identifier, serial number or name, or by its place on the machine
// ("C4 slot 8", "controller 4, logical drive 3", "enclosure 0, slot 8"). The tool tells controllers of one number
// apart: "C3 (arcconf)".
ObjectSearch FindObjects(const Machine& machine, const InstanceList& instances, std::string_view what);

}  // namespace hxahost
