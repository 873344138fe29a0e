#pragma once

#include <string>

#include "host/hxacore/schema.h"

namespace NKVRHXA20 {

// Whether a property may have the value: it has the declared type, or is empty. A reference that names a class names
// the declared one.
bool HasDeclaredType(const TCIMValue& value, const PropertyDeclaration& declared);

// The declared type in words: "string", "uint32[]", "reference to KVRSG_zxDiskDrive".
std::string TypeText(const PropertyDeclaration& declared);

}  // namespace NKVRHXA20
