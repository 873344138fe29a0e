#pragma once

#include <string>

// What a utility of the sample machine prints, carriage returns included: SampleAnswer("arcconf/1/getconfig-al").
std::string SampleAnswer(const std::string& name);
