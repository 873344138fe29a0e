#pragma once

#include <ostream>
#include <string>

#include "host/hxahost/bundle/bundle.h"

namespace hxahost {

// A bundle as one file of text: docs/bundles.md describes it.
void WriteBundle(std::ostream& out, const Bundle& bundle);
std::string WriteBundle(const Bundle& bundle);

}  // namespace hxahost
