#pragma once

#include <ostream>
#include <span>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes by name, each with its one-line description.
void WriteClassList(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

// The classes as MOF, in their order. Key, Association and Description are CIM's standard qualifiers.
void WriteMof(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

}  // namespace hxahost
