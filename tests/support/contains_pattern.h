#pragma once

#include <regex>
#include <string>

#include <gmock/gmock.h>

// GoogleTest's own regular expressions have no brackets on Windows; the standard library's are the same everywhere.
MATCHER_P(ContainsPattern, pattern, "contains the pattern " + std::string(pattern)) {
  return std::regex_search(std::string(arg), std::regex(pattern));
}
