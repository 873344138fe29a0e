#include "host/hxahost/system/signals.h"

namespace hxahost {

// Windows has none of these signals.
void SetSignals() {}

}  // namespace hxahost
