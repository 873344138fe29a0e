#pragma once

#include <string>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// Narrow text is UTF-8; other text is read in the system's own code page.
HXACORE_API std::wstring ToWide(const std::string& text);

// The text of Windows for an error code, in one line without its end.
HXACORE_API std::string ErrorText(unsigned long code);

}  // namespace NKVRHXA20
