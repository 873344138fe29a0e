#pragma once

#include <string>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// Narrow text is UTF-8; what is not valid UTF-8 is read in the system's own code page.
HXACORE_API std::wstring ToWide(const std::string& text);

// What Windows says of an error code, in one line without its end.
HXACORE_API std::string ErrorText(unsigned long code);

}  // namespace NKVRHXA20
