#pragma once

#include <string>
#include <vector>

namespace NKVRHXA20 {

// One argument as it stands in a command line, so that CommandLineToArgvW and the C runtimes give it back unchanged.
std::wstring QuotedArgument(const std::wstring& argument);

// The whole command line: the program as given, then the arguments.
std::wstring CommandLine(const std::string& path, const std::vector<std::string>& arguments);

}  // namespace NKVRHXA20
