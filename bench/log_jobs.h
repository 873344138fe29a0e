#pragma once

#include "bench/jobs.h"

// The RAID manager's log with so many lines, in a folder of its own that is gone with the process.
Job SplitLog(int lines);  // into lines, with the standard library
Job ReadLog(int lines);   // into records
Job PublishLogToIdleHost(int lines);
Job PublishLog(int lines);
