#pragma once

namespace hxahost {

// Makes the program independent of the signals that its parent process ignores: ends of children are reported, and a
// write to a closed pipe or beyond a size limit fails with an error.
void SetSignals();

}  // namespace hxahost
