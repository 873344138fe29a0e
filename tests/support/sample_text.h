#pragma once

#include <map>
#include <string>

// What a utility of the sample machine prints, carriage returns included: SampleAnswer("arcconf/1/getconfig-al").
std::string SampleAnswer(const std::string& name);

// All that a utility of the sample machine answers, by tool and arguments ("arcconf getconfig 1 al"): controllers that
// it has by their texts, all other numbers to 8 by its text for them.
std::map<std::string, std::string> AllAnswersOf(const std::string& tool);

// What all three of them answer.
std::map<std::string, std::string> AllAnswers();
