#pragma once

#include <string>
#include <string_view>

// The text of a bundle with correct sizes and checksums for its contents, so that a changed bundle is not refused only
// because of them.
std::string WithChecksums(std::string_view text);
