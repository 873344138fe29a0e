#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

using Lines = std::vector<std::string>;

// Whether both have the same lines. A failure lists just those that differ, "-" before expected and "+" before actual
// ones.
testing::AssertionResult SameLines(const Lines& expected, const Lines& actual);
testing::AssertionResult SameText(const std::string& expected, const std::string& actual);

// Whether a text is that of a file in tests/golden, which it replaces first where ZENX_RENEW_GOLDEN is in the
// environment.
testing::AssertionResult IsGolden(const std::string& name, const std::string& text);
