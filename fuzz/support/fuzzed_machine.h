#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/support/sections.h"
#include "fuzz/support/utilities.h"

// While it exists, utilities answer with the texts of an input, from the given one on, in the order of the utilities;
// the clock does not move. A utility whose text is missing, or begins with kCannotRun, cannot be run. Other utilities
// do not exist.
class FuzzedMachine {
 public:
  // Begins a text that is the reason for a missing answer.
  static constexpr char kCannotRun = '\x1f';

  FuzzedMachine(const Sections& input, std::size_t firstText, std::vector<Utility> utilities);
  ~FuzzedMachine();
  FuzzedMachine(const FuzzedMachine&) = delete;
  FuzzedMachine& operator=(const FuzzedMachine&) = delete;

  // How often a utility was run.
  std::size_t Runs() const { return runs_; }
  // The entries so far, logged by utilities that answered.
  const std::vector<std::pair<int, std::string>>& Log() const { return log_; }

  // The largest number of runs in one collection.
  std::size_t MostRuns() const;

 private:
  std::string Answer(const std::string& path, const std::vector<std::string>& arguments);

  const Sections& input_;
  std::size_t firstText_;
  std::vector<Utility> utilities_;
  std::size_t runs_ = 0;
  std::vector<std::pair<int, std::string>> log_;
};
