#pragma once

#include <string_view>

// The fixed texts of a bundle, for writing and reading.
namespace hxahost::bundle_format {

constexpr std::string_view kMagic = "hxahost bundle ";
constexpr int kVersion = 1;
constexpr std::string_view kNone = "none";
constexpr std::string_view kCrc = " bytes, crc32 ";
constexpr std::string_view kEnd = "end of bundle, crc32 ";
constexpr char kLine = '|';         // a line of the bytes, its line feed included
constexpr char kUnendedLine = '~';  // the last line of the bytes, if no line feed ends it
constexpr std::string_view kFailureWords[] = {"not-installed",   "not-asked",  "not-started", "too-long", "not-ended",
                                              "too-much-output", "not-opened", "refused",     "other"};

}  // namespace hxahost::bundle_format
