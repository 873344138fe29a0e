#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/hxahost/bundle/bundle.h"
#include "host/hxahost/bundle/mask_places.h"
#include "host/hxahost/bundle/text_mask.h"

namespace hxahost {

// The bundle with its secrets masked: the machine's name, the folders, what the tools print after the labels that
// name a device permanently or that a customer chose, and wherever else such a text occurs. A replay publishes as many
// instances as before with the same links between them.
Bundle MaskBundle(Bundle bundle, RandomSource random, MaskScope scope = MaskScope::kNames);

}  // namespace hxahost
