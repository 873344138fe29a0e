#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace hxahost {

// On a command line, standard input or standard output instead of a file.
constexpr std::string_view kStandardStream = "-";

// Reads the file that the user named; "what" completes the advice in messages: "a bundle". Throws ProgramError (wrong
// arguments) if it cannot be read, is not an ordinary file, or is larger than the largest.
std::string ReadInputFile(const std::filesystem::path& file, std::string_view what, std::uint64_t largest);

// Reads standard input to its end. Throws ProgramError (wrong arguments) if it is larger than the largest.
std::string ReadStandardInput(std::uint64_t largest);

}  // namespace hxahost
