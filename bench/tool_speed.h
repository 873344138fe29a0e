#pragma once

#include <span>
#include <string_view>

// What it takes the plug-in to collect from one utility with one controller: all that it does but running the utility.
struct Collecting {
  double seconds = 0;    // of the processor, the shortest of several runs
  double megabytes = 0;  // of text, each answer counted once, though it is asked for twice
};

struct MeasuredTool {
  std::string_view name;
  Collecting (*measure)(int disks);  // so many on the controller
};

std::span<const MeasuredTool> MeasuredTools();
