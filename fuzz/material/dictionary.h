#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

// The string literals of the sources in the folders and of single files: what they look for in a text.
std::set<std::string> LiteralsOf(const std::vector<std::filesystem::path>& sources);

// As libFuzzer reads them, one a line.
std::string DictionaryText(const std::set<std::string>& words);
