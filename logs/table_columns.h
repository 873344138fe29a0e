#pragma once

#include <string_view>

// Cuts for the tables that qcmdrun prints between bars: "| 1 | 0 | 12 |". Columns are counted from 1, and what stands
// before the first bar belongs to none.

// What stands between the column's bar and the next one, but for the character before that (a blank, as it is
// printed); leading blanks, tabs and line feeds dropped, except that a column of blanks keeps one. "" where one of the
// two bars is missing.
std::string_view CutColumn(std::string_view line, int column);

// What stands behind the column's bar, up to the line feed, leading blanks dropped in the same way. "" where the bar
// or the line feed is missing.
std::string_view CutLastColumn(std::string_view line, int column);
