#pragma once

#include <string>
#include <vector>

// What the test child needs of the operating system.

// Its arguments, without its name, in UTF-8: what they are in truth, where the C runtime may have lost something.
std::vector<std::string> ExactArguments(int argc, char** argv);

// From here on a line feed is written as it is.
void WriteBytesAsTheyAre();

void CloseStandardOutput();

// Asking it to end does not end it.
void IgnoreTermination();

unsigned long OwnProcessId();

// Ends as a program does that has crashed.
[[noreturn]] void Crash();

// How a process that the child leaves behind is related to it.
enum class Ties {
  kAll,      // it has the output and is in the same group
  kOutput,   // it has the output, and a group and session of its own
  kNothing,  // no file, no group, no parent
};

enum class Rest {
  kSleeps,
  kFloods,
  kBreeds,  // starts one more process in its own group, and sleeps
};

// Starts a process that stays behind.
void LeaveBehind(Ties ties, Rest rest, const std::string& file);

// What that process does: writes its number to the file and then rests.
void StayBehind(Rest rest, const std::string& file);

// The environment, "NAME=value" each.
std::vector<std::string> Environment();
