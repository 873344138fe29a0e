#pragma once

#include <cstddef>
#include <string>

// What a job took, in a process of its own: what one leaves behind is no other's.
struct Cost {
  std::size_t bytes = 0;    // of text that it worked on
  std::size_t things = 0;   // that came of it
  double seconds = 0;       // of the processor, in the shortest of the runs
  double peakMiB = 0;       // of the process, the making of the job included
  double instructions = 0;  // 0 where they were not counted
};

// Throws std::runtime_error when a run fails.
Cost Timed(const std::string& job, int size);
Cost Counted(const std::string& job, int size);  // timed, and run once more under valgrind

// What such a process does: the job, and one line about it on standard output. The exit status.
int DoJob(const std::string& job, int size);
