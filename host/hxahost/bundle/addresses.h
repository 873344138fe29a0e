#pragma once

#include <string_view>
#include <vector>

#include "host/hxahost/bundle/mask_places.h"

namespace hxahost {

// Finds addresses by their form: e-mail addresses, MAC addresses and world-wide names, in the order of the text.
std::vector<Span> FindAddresses(std::string_view text);

}  // namespace hxahost
