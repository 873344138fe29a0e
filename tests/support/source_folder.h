#pragma once

#include <filesystem>

// A file or folder of the checkout that the tests were built from: SourceFile("docs/classes.md").
std::filesystem::path SourceFile(const std::filesystem::path& name);
