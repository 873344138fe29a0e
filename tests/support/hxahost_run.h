#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/running_program.h"

// The program under test, in the folder of the test program.
std::filesystem::path HxahostPath();

// Runs it and waits for its end.
ProgramResult RunHxahost(const std::vector<std::string>& arguments);

// Runs a script of bash, in which "$0" is the program and "$@" are the arguments; for systems with bash.
ProgramResult RunFromShell(const std::string& script, std::vector<std::string> arguments);

// The sample machine of this build.
std::filesystem::path SampleMachine();

// The sample machine, queried twice by the real program with real processes, once for all tests of a test program.
struct SampleRun {
  nlohmann::ordered_json result;
  std::filesystem::path bundle;
};
const SampleRun& RunOfSampleMachine();

// The bundle of that run: fast, for tests that need no real tools.
std::string RecordedSampleMachine();

// The JSON of "hxahost query" on the sample machine, with the keys in their order. The query must succeed.
nlohmann::ordered_json QuerySampleMachine(std::vector<std::string> furtherArguments = {});
