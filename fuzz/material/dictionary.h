#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

// The string literals in the sources, folders or single files: the words that they search for.
std::set<std::string> LiteralsOf(const std::vector<std::filesystem::path>& sources);

// In the format of libFuzzer, one on each line.
std::string DictionaryText(const std::set<std::string>& words);
