#pragma once

#include <windows.h>

namespace hxahost {

// Whether an access list of a file or a folder lets any of the groups to which everybody belongs change it. No list at
// all (null) lets everybody do everything.
bool LetsOthersWrite(ACL* list);

// Whether the list of a folder lets any of them put something else into the place of what lies in it, or of itself.
bool LetsOthersExchange(ACL* list);

}  // namespace hxahost
