#pragma once

#include <string_view>

// The hours from UTC of a time zone, by the name that the RAID manager gives it. 0 for a name that is not known.
int HoursFromUtc(std::string_view zone);
