#pragma once

#include <string_view>

// Ends the program with a message, so that the fuzzer keeps the input, unless what must hold does.
void Require(bool holds, std::string_view mustHold);

// The same, and shows a text that tells the case from others.
void Require(bool holds, std::string_view mustHold, std::string_view shown);
