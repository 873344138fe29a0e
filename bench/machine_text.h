#pragma once

#include <string>

// Answers of the utilities for one controller with so many disks, as large as real ones: an array and a logical drive
// for every eight disks, sixteen disks a channel.
std::string QcmdrunConfig(int disks);
std::string QcmdrunDeviceEvents(int disks);
std::string QcmdrunSubStatus(int disks);
std::string ArcconfConfig(int disks);
std::string HrconfConfig(int disks);
