#pragma once

#include <filesystem>
#include <map>
#include <string>

// The sample machine of the build that this program is of.
std::filesystem::path SampleMachine();

// What a utility prints of one controller with so many disks, as much as real ones do: a logical drive for every eight
// disks, sixteen disks a channel. By command and option, such as "getconfig-al".
using Answers = std::map<std::string, std::string>;
Answers QcmdrunAnswers(int disks, const std::string& lineEnd);
Answers ArcconfAnswers(int disks, const std::string& lineEnd);
Answers HrconfAnswers(int disks, const std::string& lineEnd);
