#pragma once

#include <string_view>

#include "collect/line_scanner.h"

// Headings that several tools print.
constexpr std::string_view kLogicalDriveSection = "Logical drive information";
constexpr std::string_view kPhysicalDeviceSection = "Physical Device information";

// After a heading comes a rule; what it heads begins on the second line.
inline void StepOverRule(CollectedData& text) {
  text.NextLine();
  text.NextLine();
}
