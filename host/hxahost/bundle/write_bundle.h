#pragma once

#include <string>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// A bundle as one file of text: docs/bundles.md describes it.
std::string WriteBundle(const Bundle& bundle);

}  // namespace hxahost
