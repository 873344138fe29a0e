#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string_view>

// Work to be measured, with all that it needs made before.
struct Job {
  std::size_t bytes = 0;              // of text that it works on
  std::function<std::size_t()> work;  // done once; gives how many things came of it
};

// A kind of job, and what makes one of a size: disks, or lines of a log.
struct NamedJob {
  std::string_view name;
  Job (*make)(int size);
};

std::span<const NamedJob> Jobs();
