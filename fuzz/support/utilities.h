#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The controller utilities, as far as an input that answers for them has to know them.

// A command and its option as in the name of a file with its answer: "getconfig-al", "getstatus".
struct Utility {
  std::string_view name;
  std::span<const std::string_view> commands;
  std::size_t mostRuns;  // what one collection runs at most
};

extern const Utility kQcmdrun;
extern const Utility kHrconf;
extern const Utility kArcconf;

// Controllers have the numbers from 1. Those from the last of these on share one set of answers.
constexpr std::size_t kAnsweredControllers = 4;

// How many texts of an input answer for the utility.
std::size_t AnswerCount(const Utility& utility);

// Where among them the answer to a command is: by controllers, then in the order of the commands. Ends the program
// for a command that the utility is not to be run with.
std::size_t AnswerPlace(const Utility& utility, const std::vector<std::string>& arguments);
