#pragma once

#include <string_view>

// The text without the blanks, tabs, carriage returns and line feeds at both its ends.
std::string_view Trimmed(std::string_view text);
