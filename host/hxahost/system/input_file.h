#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace hxahost {

// On a command line, standard input or standard output in the place of a file.
constexpr std::string_view kStandardStream = "-";

// The bytes of a file that a person named; what it should be is the end of the advice: "a bundle". Throws ProgramError
// (wrong arguments) for one that cannot be read, that is no ordinary file, or that has more bytes than the largest.
std::string ReadInputFile(const std::filesystem::path& file, std::string_view what, std::uint64_t largest);

// All of standard input. Throws ProgramError (wrong arguments) where there are more bytes than the largest.
std::string ReadStandardInput(std::uint64_t largest);

}  // namespace hxahost
