#pragma once

#include <sys/stat.h>

namespace hxahost {

// Whether the mode and the owners of a file let others than root and the given user write to it. His own group is taken
// for his alone, as where every user has one. A folder in which all may make files, but nobody may replace another's
// ("sticky", as /tmp), is one that others write to.
bool LetsOthersWrite(const struct stat& file, uid_t user, gid_t group);

// Whether others may put something else into the place of what lies in a folder. In a "sticky" one only its owner and
// the folder's may.
bool LetsOthersExchange(const struct stat& folder, const struct stat& entry, uid_t user, gid_t group);

}  // namespace hxahost
