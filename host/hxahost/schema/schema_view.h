#pragma once

#include <ostream>
#include <span>
#include <string_view>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes by name, each with its one-line description.
void WriteClassList(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

// The line of MOF that sets the namespace of the declarations after it.
inline constexpr std::string_view kMofNamespace = "#pragma namespace(\"root/cimv2\")\n";

// The classes as MOF, in their order, with the origin of each property as its MappingStrings. It compiles by itself,
// as it declares the qualifiers that it uses. With superclasses, which all classes except a few have, it needs the
// DMTF's schema with its qualifiers.
void WriteSchemaMof(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes, bool withSuperclasses);

}  // namespace hxahost
