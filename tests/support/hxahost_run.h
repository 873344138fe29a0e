#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "tests/support/running_program.h"

// The program under test, which lies beside the test program.
std::filesystem::path HxahostPath();

// Runs it to its end.
ProgramResult RunHxahost(const std::vector<std::string>& arguments);

// The sample machine of this build.
std::filesystem::path SampleMachine();

// The sample machine, queried twice by the real program with real processes, once for all tests of a program.
struct SampleRun {
  nlohmann::ordered_json result;
  std::filesystem::path bundle;
};
const SampleRun& RunOfSampleMachine();

// The bundle of that run: quick where it does not matter that tools are run.
std::string RecordedSampleMachine();

// What "hxahost query" on the sample machine shows as JSON, with the keys in their order. The query must succeed.
nlohmann::ordered_json QuerySampleMachine(std::vector<std::string> furtherArguments = {});
