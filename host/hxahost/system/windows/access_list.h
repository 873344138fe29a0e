#pragma once

#include <windows.h>

namespace hxahost {

// Whether the access list of a file or a folder lets any of the groups that include everybody change it. No list (null)
// lets everybody do everything.
bool LetsOthersWrite(ACL* list);

// Whether the list of a folder lets any of them replace an entry of the folder, or the folder itself.
bool LetsOthersExchange(ACL* list);

}  // namespace hxahost
