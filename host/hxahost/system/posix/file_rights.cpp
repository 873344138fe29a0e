#include "host/hxahost/system/file_rights.h"

#include <system_error>

#include <unistd.h>

#include "host/hxahost/system/posix/file_mode.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

bool IsOwnedByOthers(const struct stat& file, uid_t user) { return file.st_uid != 0 && file.st_uid != user; }

// Whoever may write to the folder can create an entry that does not exist yet.
bool OthersMayExchange(const fs::path& entry) {
  struct stat folder {};
  struct stat status {};
  if (stat(entry.parent_path().c_str(), &folder) != 0) return false;
  if (lstat(entry.c_str(), &status) != 0) return LetsOthersWrite(folder, geteuid(), getegid());
  return LetsOthersExchange(folder, status, geteuid(), getegid());
}

// Pushes the steps in reverse order, so that the first one is on top.
void PushSteps(const fs::path& target, std::vector<fs::path>& steps) {
  const std::vector<fs::path> names(target.begin(), target.end());
  steps.insert(steps.end(), names.rbegin(), names.rend());
}

}  // namespace

bool LetsOthersWrite(const struct stat& file, uid_t user, gid_t group) {
  const bool isOthersGroup = file.st_gid != 0 && file.st_gid != group;
  const mode_t others = S_IWOTH | (isOthersGroup ? mode_t{S_IWGRP} : mode_t{0});
  return IsOwnedByOthers(file, user) || (file.st_mode & others) != 0;
}

bool LetsOthersExchange(const struct stat& folder, const struct stat& entry, uid_t user, gid_t group) {
  if (!LetsOthersWrite(folder, user, group)) return false;
  const bool isSticky = (folder.st_mode & S_ISVTX) != 0;
  return !isSticky || IsOwnedByOthers(folder, user) || IsOwnedByOthers(entry, user);
}

bool OthersMayWrite(const std::filesystem::path& path) {
  struct stat file {};
  return stat(path.c_str(), &file) == 0 && LetsOthersWrite(file, geteuid(), getegid());
}

std::vector<fs::path> UnsafeFoldersOfLink(const fs::path& link) {
  constexpr int kMostLinks = 40;  // the system's own limit
  std::vector<fs::path> unsafe;
  std::error_code failure;
  if (!fs::is_symlink(link, failure)) return unsafe;
  fs::path folder = fs::canonical(link.parent_path(), failure);
  std::vector<fs::path> steps;
  PushSteps(fs::read_symlink(link, failure), steps);
  for (int links = 1; !steps.empty() && links <= kMostLinks;) {
    const fs::path step = steps.back();
    steps.pop_back();
    const fs::path entry = folder / step;
    if (step == "..") {
      folder = folder.parent_path();
    } else if (step.is_absolute()) {
      folder = step;
    } else if (!step.empty() && step != ".") {
      if (OthersMayExchange(entry)) unsafe.push_back(folder);
      if (fs::is_symlink(entry, failure)) {
        PushSteps(fs::read_symlink(entry, failure), steps);
        ++links;
      } else {
        folder = entry;
      }
    }
  }
  const bool isProgram = fs::is_regular_file(folder, failure);
  if (isProgram && OthersMayWrite(folder.parent_path())) unsafe.push_back(folder.parent_path());
  return unsafe;
}

void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) {
  struct stat file {};
  if (stat(from.c_str(), &file) != 0) return;
  // Before the mode, as changing the owner clears bits of it. Most users may only give a file to their own groups.
  constexpr auto kSameOwner = static_cast<uid_t>(-1);
  const bool keepsGroup =
      chown(to.c_str(), file.st_uid, file.st_gid) == 0 || chown(to.c_str(), kSameOwner, file.st_gid) == 0;
  const mode_t rights = file.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
  const mode_t others = rights & S_IRWXO;
  chmod(to.c_str(), keepsGroup ? rights : (rights & ~mode_t{S_IRWXG}) | others << 3U);
}

}  // namespace hxahost
