#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// What tests need of the operating system.

// The folder of the test program, and so of everything that is built with it.
std::filesystem::path ProgramFolder();

// Whether a process of this number runs; one that has ended and only waits for its parent to notice does not.
bool IsRunning(unsigned long process);

// The processes that run this program, or one in this folder.
std::vector<unsigned long> ProcessesOf(const std::filesystem::path& programs);

// How many files, pipes and the like this process holds.
std::size_t OpenHandleCount();

// Whether this process has children, ended ones that nobody waited for included.
bool HasChildren();

// Sets a variable of this process's environment.
void SetVariable(const std::string& name, const std::string& value);

// Lets everybody write to a file or a folder.
void LetOthersWrite(const std::filesystem::path& path);

// How many bytes of memory this process has allocated.
std::size_t MemoryInUse();

// Unloads a library that was loaded once. Gives whether it is gone: a system may keep it.
bool UnloadLibrary(const std::filesystem::path& file);

// How often a test does what must not wear out. Wine takes a hundred times longer to start a program than Linux does.
extern const int kManyRuns;

// Of how many cases a test tries one where each takes a whole run of the program with all of its tools: a prime, so
// that each fault has its turn.
extern const std::size_t kCasesForOneRun;
