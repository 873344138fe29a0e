#pragma once

#include <windows.h>

namespace hxahost {

// Whether an access list of a file or a folder lets any of the groups to which everybody belongs change it. No list at
// all (null) lets everybody do everything.
bool LetsOthersWrite(ACL* list);

}  // namespace hxahost
