#pragma once

#include <ostream>
#include <span>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes as a page of documentation: a drawing of the associations, the superclasses, whether or not they are
// asked for, then each class with a table of its properties and where they come from.
void WriteSchemaMarkdown(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes,
                         bool withSuperclasses);

}  // namespace hxahost
