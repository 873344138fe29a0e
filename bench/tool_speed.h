#pragma once

#include <span>
#include <string_view>

// The cost of collecting from one utility with one controller, without running the utility.
struct Collecting {
  double seconds = 0;    // of the processor, the shortest of several runs
  double megabytes = 0;  // of text, each answer counted once, though it is requested twice
};

struct MeasuredTool {
  std::string_view name;
  Collecting (*measure)(int disks);  // so many on the controller
};

std::span<const MeasuredTool> MeasuredTools();
