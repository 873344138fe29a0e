#pragma once

#include <map>
#include <string>

// The output of a utility of the sample machine, carriage returns included: SampleAnswer("arcconf/1/getconfig-al").
std::string SampleAnswer(const std::string& name);

// Every answer of a utility of the sample machine, by tool and arguments ("arcconf getconfig 1 al"): its controllers
// with their texts, the other numbers up to 8 with its text for them.
std::map<std::string, std::string> AllAnswersOf(const std::string& tool);

// The answers of all three utilities.
std::map<std::string, std::string> AllAnswers();
