#pragma once

#include <ostream>
#include <span>
#include <string_view>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes by name, each with its one-line description.
void WriteClassList(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

// The classes as MOF that compiles by itself, in their order: with the qualifiers that they have, and with the origin
// of each property as its MappingStrings.
void WriteSchemaMof(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);

// One way to show the classes.
struct SchemaView {
  std::string_view format;
  void (*Write)(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes);
};

// The default first.
std::span<const SchemaView> SchemaViews();

// Null where there is no such format.
const SchemaView* FindSchemaView(std::string_view format);

}  // namespace hxahost
