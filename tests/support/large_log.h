#pragma once

#include <string>

#include "tests/support/temporary_folder.h"

// The text of a RAID manager's log with so many events, each of about 90 bytes.
std::string LargeLog(int events);

// Writes the bundle of the sample machine with such a log, and returns its path in UTF-8.
std::string WriteLargeLogBundle(const TemporaryFolder& folder, int events);
