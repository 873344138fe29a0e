#pragma once

#include <string>

#include "host/hxacore/value_reader.h"

namespace hxahost {

// The object path of what the reference refers to, in UTF-8. Each key is read by itself, as the property is that it is
// the value of: one whose bytes are no UTF-8 changes none of the others.
std::string ObjectPathText(const NKVRHXA20::TCIMReference& reference);

}  // namespace hxahost
