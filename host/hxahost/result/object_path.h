#pragma once

#include <string>

#include "host/hxacore/value_reader.h"

namespace hxahost {

// The object path of a reference, in UTF-8. Each key is converted separately, like the property that contains the same
// value: a key whose bytes are not UTF-8 does not change the others.
std::string ObjectPathText(const NKVRHXA20::TCIMReference& reference);

}  // namespace hxahost
