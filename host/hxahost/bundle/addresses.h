#pragma once

#include <string_view>
#include <vector>

#include "host/hxahost/bundle/mask_places.h"

namespace hxahost {

// Finds addresses by their form, in the order of the text: e-mail addresses, IP addresses, MAC addresses and world-wide
// names. Four numbers are a version, and no IPv4 address, if the word before them says so.
std::vector<Span> FindAddresses(std::string_view text);

}  // namespace hxahost
