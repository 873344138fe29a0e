#pragma once

#include <string>

#include "host/hxacore/schema.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// Whether a property may have the value: it has the declared type, or is empty. A reference with a class name must name
// the declared class.
HXACORE_API bool HasDeclaredType(const TCIMValue& value, const PropertyDeclaration& declared);

// The type's name in CIM: "string", "uint32".
HXACORE_API std::string TypeName(ECIMType type);

// The declared type in words: "string", "uint32[]", "reference to KVRSG_zxDiskDrive".
HXACORE_API std::string TypeText(const PropertyDeclaration& declared);

}  // namespace NKVRHXA20
