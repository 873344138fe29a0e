#pragma once

#include <optional>
#include <string_view>

#include "plugin/host_interface/date_time.h"

// The number of a month by the letters of its English name that tell it from the others, 0 where there are none such.
// January, June and July need their fourth letter: "Jan" and "Jun" are 0.
unsigned MonthNumber(std::string_view word);

// The time with which a line of the RAID manager's log begins, in one of three forms:
//   "Mar 5, 2007 11:02:03 PM EST"
//   "5 March 2007 23:02:03 EST"
//   "2007/03/05 23:02:03 EST"
// The line's first field holds it; the line shows which form it has. What is missing counts as 0. Nothing for a
// line that begins with neither a digit nor a letter.
std::optional<NKVRHXA20::TCIMDateTime> ReadEventTime(std::string_view line, std::string_view firstField);
