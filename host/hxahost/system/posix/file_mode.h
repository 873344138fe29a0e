#pragma once

#include <sys/stat.h>

namespace hxahost {

// Whether the mode and the owners of a file let anyone except root and the given user write to it. The user's own group
// counts as having no other members, as on systems with a group for each user. A "sticky" folder such as /tmp, in which
// all may create files but not replace those of others, counts as writable by others.
bool LetsOthersWrite(const struct stat& file, uid_t user, gid_t group);

// Whether others may replace an entry of the folder. In a "sticky" folder only the owners of the entry and of the
// folder may do so.
bool LetsOthersExchange(const struct stat& folder, const struct stat& entry, uid_t user, gid_t group);

}  // namespace hxahost
