#pragma once

#include <stdexcept>
#include <string_view>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// Why a text is no bundle that can be read: one line, printable, to follow the file's name.
class BundleError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Throws BundleError for a text that WriteBundle did not write, or that was changed since.
Bundle ReadBundle(std::string_view text);

// Whether it begins as bundles of every version do.
bool LooksLikeBundle(std::string_view text);

}  // namespace hxahost
