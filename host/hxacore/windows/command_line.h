#pragma once

#include <string>
#include <vector>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// One argument in the form for a command line, so that CommandLineToArgvW and the C runtimes return it unchanged.
HXACORE_API std::wstring QuotedArgument(const std::wstring& argument);

// The whole command line: the program as given, then the arguments.
HXACORE_API std::wstring CommandLine(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace NKVRHXA20
