#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace hxahost {

// The whole program, from the arguments after its name to its exit status.
int RunProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err);

}  // namespace hxahost
