#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

using Lines = std::vector<std::string>;

// Whether both have the same lines. A failure lists only the different lines, "-" before expected and "+" before actual
// ones.
testing::AssertionResult SameLines(const Lines& expected, const Lines& actual);
testing::AssertionResult SameText(const std::string& expected, const std::string& actual);

// Whether a text equals a file in tests/golden. If ZENX_RENEW_GOLDEN is in the environment, the text first replaces the
// file.
testing::AssertionResult IsGolden(const std::string& name, const std::string& text);
