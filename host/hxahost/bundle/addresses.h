#pragma once

#include <string_view>
#include <vector>

#include "host/hxahost/bundle/mask_places.h"

namespace hxahost {

// The addresses in a text, known by their form: e-mail addresses, MAC addresses and world-wide names, in their order.
std::vector<Span> FindAddresses(std::string_view text);

}  // namespace hxahost
