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

}  // namespace hxahost
