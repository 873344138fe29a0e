#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/support/sections.h"
#include "fuzz/support/utilities.h"

// While it lives, utilities answer with the texts of an input, from the given one on, in the order of the utilities;
// the clock does not move. A utility whose text is missing, or begins with kCannotRun, cannot be run. Others are not
// there.
class FuzzedMachine {
 public:
  // Begins a text that is not an answer but the reason why there is none.
  static constexpr char kCannotRun = '\x1f';

  FuzzedMachine(const Sections& input, std::size_t firstText, std::vector<Utility> utilities);
  ~FuzzedMachine();
  FuzzedMachine(const FuzzedMachine&) = delete;
  FuzzedMachine& operator=(const FuzzedMachine&) = delete;

  // How often a utility was run.
  std::size_t Runs() const { return runs_; }
  // Until now, by one that answered.
  const std::vector<std::pair<int, std::string>>& Log() const { return log_; }

  // How often they are run at most while everything is collected once.
  std::size_t MostRuns() const;

 private:
  std::string Answer(const std::string& path, const std::vector<std::string>& arguments);

  const Sections& input_;
  std::size_t firstText_;
  std::vector<Utility> utilities_;
  std::size_t runs_ = 0;
  std::vector<std::pair<int, std::string>> log_;
};
