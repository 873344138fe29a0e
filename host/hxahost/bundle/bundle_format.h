#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "host/hxahost/bundle/bundle.h"

// A bundle as one file of text: docs/bundle-format.md describes it.
namespace hxahost {

// Why a text is no bundle that can be read: one line, printable, for behind the file's name.
class BundleError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string WriteBundle(const Bundle& bundle);

// Throws BundleError for a text that WriteBundle did not write, or that was changed since.
Bundle ReadBundle(std::string_view text);

// Whether it begins as bundles of every version do.
bool LooksLikeBundle(std::string_view text);

namespace bundle_format {

// What both sides write and expect.
constexpr std::string_view kMagic = "hxahost bundle ";
constexpr int kVersion = 1;
constexpr std::string_view kNone = "none";
constexpr std::string_view kCrc = " bytes, crc32 ";
constexpr std::string_view kEnd = "end of bundle, crc32 ";
constexpr char kLine = '|';         // a line of the bytes, its line feed included
constexpr char kUnendedLine = '~';  // the last of the bytes, where no line feed ends them
constexpr std::string_view kFailureWords[] = {"not-started", "too-long", "too-much-output", "refused", "other"};

}  // namespace bundle_format

}  // namespace hxahost
