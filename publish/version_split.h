#pragma once

#include <string_view>

struct VersionAndBuild {
  std::string_view version;
  std::string_view build;
};

// Splits "5.2-0 (12345)" before and inside the parentheses; the blank before them stays with the version. A version
// without parentheses has no build. One that opens them and does not close them is whole in both.
VersionAndBuild SplitVersion(std::string_view text);
