#include "host/hxahost/system/file_rights.h"

#include <unistd.h>

#include "host/hxahost/system/posix/file_mode.h"

namespace hxahost {

bool LetsOthersWrite(const struct stat& file, uid_t user, gid_t group) {
  const bool isOwnedByOthers = file.st_uid != 0 && file.st_uid != user;
  const bool isOthersGroup = file.st_gid != 0 && file.st_gid != group;
  const mode_t others = S_IWOTH | (isOthersGroup ? mode_t{S_IWGRP} : mode_t{0});
  return isOwnedByOthers || (file.st_mode & others) != 0;
}

bool OthersMayWrite(const std::filesystem::path& path) {
  struct stat file {};
  return stat(path.c_str(), &file) == 0 && LetsOthersWrite(file, geteuid(), getegid());
}

void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) {
  struct stat file {};
  if (stat(from.c_str(), &file) != 0) return;
  // Before the mode, of which a new owner takes bits away. Most users may give a file to their own groups alone.
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  const bool keepsGroup =
      chown(to.c_str(), file.st_uid, file.st_gid) == 0 || chown(to.c_str(), kSameOwner, file.st_gid) == 0;
  const mode_t rights = file.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  const mode_t others = rights & S_IRWXO;
  chmod(to.c_str(), keepsGroup ? rights : (rights & ~mode_t{S_IRWXG}) | others << 3U);
}

}  // namespace hxahost
