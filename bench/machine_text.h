#pragma once

#include <filesystem>
#include <map>
#include <string>

// The sample machine of the build that contains this program.
std::filesystem::path SampleMachine();

// The output of a utility for one controller with so many disks, as long as real output: a logical drive for every
// eight disks, sixteen disks on each channel. By command and option, such as "getconfig-al".
using Answers = std::map<std::string, std::string>;
Answers QcmdrunAnswers(int disks, const std::string& lineEnd);
Answers ArcconfAnswers(int disks, const std::string& lineEnd);
Answers HrconfAnswers(int disks, const std::string& lineEnd);
