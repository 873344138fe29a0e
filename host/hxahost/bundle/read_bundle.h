#pragma once

#include <stdexcept>
#include <string_view>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Why a text is not a readable bundle: one line, printable, to follow the file's name.
class BundleError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Throws BundleError if WriteBundle did not write the text, or it was changed later.
Bundle ReadBundle(std::string_view text);

// Whether the text begins like a bundle of any version.
bool LooksLikeBundle(std::string_view text);

}  // namespace hxahost
