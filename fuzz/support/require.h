#pragma once

#include <string_view>

// Ends the program with a message unless the condition holds, so that the fuzzer keeps the input.
void Require(bool holds, std::string_view mustHold);

// The same, and shows a text that identifies the case.
void Require(bool holds, std::string_view mustHold, std::string_view shown);
