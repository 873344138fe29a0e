#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

// The calls of the operating system that tests need.

// The folder of the test program, and so of every built program.
std::filesystem::path ProgramFolder();

// Whether a process with this number runs; one that has ended but was not yet waited for does not.
bool IsRunning(unsigned long process);

// The processes that run this program, or one in this folder.
std::vector<unsigned long> ProcessesOf(const std::filesystem::path& programs);

// The number of files, pipes and other handles of this process.
std::size_t OpenHandleCount();

// Whether this process has children, including ended ones that were not waited for.
bool HasChildren();

// Sets a variable of this process's environment.
void SetVariable(const std::string& name, const std::string& value);

// Lets everybody write to a file or a folder.
void LetOthersWrite(const std::filesystem::path& path);

// The number of bytes that this process has allocated.
std::size_t MemoryInUse();

// Unloads a library that was loaded once. Returns whether it is unloaded: a system may keep it.
bool UnloadLibrary(const std::filesystem::path& file);

// How often a test repeats a call to find leaks. Wine needs a hundred times as long as Linux to start a program.
extern const int kManyRuns;

// A test whose cases each take a whole run of the program with all tools tries one of so many cases: a prime, so that
// each fault is tried.
extern const std::size_t kCasesForOneRun;
