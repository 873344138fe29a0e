#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The controller utilities, with the facts that an input needs to answer for them.

// A command and its option as in the name of a file with its answer: "getconfig-al", "getstatus".
struct Utility {
  std::string_view name;
  std::span<const std::string_view> commands;
  std::size_t mostRuns;  // the limit of runs for one collection
};

extern const Utility kQcmdrun;
extern const Utility kHrconf;
extern const Utility kArcconf;

// Controllers are numbered from 1. From the last of these numbers on, they share one set of answers.
constexpr std::size_t kAnsweredControllers = 4;

// The number of texts in an input that answer for the utility.
std::size_t AnswerCount(const Utility& utility);

// The place of a command's answer among them: by controllers, then in the order of the commands. Ends the program for a
// command with which the utility must not be run.
std::size_t AnswerPlace(const Utility& utility, const std::vector<std::string>& arguments);
