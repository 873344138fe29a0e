#pragma once

#include <ostream>
#include <span>

#include "host/hxacore/schema.h"

namespace hxahost {

// The classes as a document: a drawing of the associations, the superclasses (always, even if withSuperclasses is
// false), then each class with a table of its properties and their origins.
void WriteSchemaMarkdown(std::ostream& out, std::span<const NKVRHXA20::ClassDeclaration> classes,
                         bool withSuperclasses);

}  // namespace hxahost
