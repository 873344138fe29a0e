#pragma once

#include <string>
#include <vector>

// The calls of the operating system that the test child needs.

// Its exact arguments, without its name, in UTF-8; the C runtime may have lost characters.
std::vector<std::string> ExactArguments(int argc, char** argv);

// From now on a line feed is written unchanged.
void WriteBytesAsTheyAre();

void CloseStandardOutput();

// Requests to end do not end it.
void IgnoreTermination();

unsigned long OwnProcessId();

// Ends like a program that crashed.
[[noreturn]] void Crash();

// How a process that the child leaves is related to it.
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

// Starts a process that outlives the child.
void LeaveBehind(Ties ties, Rest rest, const std::string& file);

// The main function of that process: writes its number to the file and then rests.
void StayBehind(Rest rest, const std::string& file);

// The environment, "NAME=value" each.
std::vector<std::string> Environment();
