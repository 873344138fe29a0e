#pragma once

#include <array>
#include <string_view>

// The fields of a line of the RAID manager's log: time, severity, machine, message. A tab ends a field, and so does a
// NUL. Fields that the line does not have are empty; what follows a fourth one is dropped.
std::array<std::string_view, 4> SplitFields(std::string_view line);
