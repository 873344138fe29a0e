#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hxahost {

// The plain words for classes: "controllers", "disks" and so on.
std::vector<std::string> ClassWords();

// The declared names of the classes that a word means: a plain word, or the name of a class in upper or lower case,
// with or without "KVRSG_" and "zx". Throws ProgramError if there is no such class.
std::vector<std::string> ClassesCalled(std::string_view word);

}  // namespace hxahost
