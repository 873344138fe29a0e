#pragma once

#include <string>
#include <string_view>

// The text of a bundle with the sizes and checksums that belong to its contents, so that a change of it is not
// refused for them alone.
std::string WithChecksums(std::string_view text);
