#pragma once

#include <ostream>
#include <span>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes by name, each with its one-line description.
void WriteClassList(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

// The classes as MOF that compiles by itself, in their order: with the qualifiers that they have, and with the origin
// of each property as its MappingStrings.
void WriteSchemaMof(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

}  // namespace hxahost
