#include "host/hxahost/system/folder_lock.h"

#include <cerrno>
#include <sstream>

#include <fcntl.h>
#include <fmt/core.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "host/hxacore/whole_file.h"

namespace hxahost {

namespace {

// "417 (name) S 1 ...": the 22nd field is the time of the start, in ticks since the start of the system. The name can
// contain any characters.
LockHolder HolderOf(unsigned long process) {
  constexpr int kFieldsBefore = 19;  // from the third on
  LockHolder holder{process, "", 0};
  const std::string status = NKVRHXA20::ReadWholeFile(fmt::format("/proc/{}/stat", process)).bytes;
  const auto begin = status.find('(');
  const auto end = status.rfind(") ");
  if (begin == status.npos || end == status.npos) return holder;
  holder.program = status.substr(begin + 1, end - begin - 1);
  std::istringstream fields(status.substr(end + 2));
  std::string skipped;
  for (int field = 0; field < kFieldsBefore; ++field) fields >> skipped;
  std::time_t ticks = 0;
  timespec sinceStart{};
  clock_gettime(CLOCK_BOOTTIME, &sinceStart);
  if (fields >> ticks) holder.since = std::time(nullptr) - sinceStart.tv_sec + ticks / sysconf(_SC_CLK_TCK);
  return holder;
}

}  // namespace

// Locks the folder itself, so no file remains in it. The tools do not inherit the lock.
bool FolderLock::Take() {
  if (handle_ < 0) handle_ = open(folder_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return handle_ < 0 || flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// "1: FLOCK  ADVISORY  WRITE 4711 fe:01:131077 0 EOF", with the process, the device and the inode. The number of a
// process that is hidden from this one is 0 or -1.
std::optional<LockHolder> FolderLock::Holder() const {
  struct stat folder {};
  if (fstat(static_cast<int>(handle_), &folder) != 0) return std::nullopt;
  const std::string place = fmt::format("{:02x}:{:02x}:{}", major(folder.st_dev), minor(folder.st_dev), folder.st_ino);
  std::istringstream locks(NKVRHXA20::ReadWholeFile("/proc/locks").bytes);
  for (std::string line; std::getline(locks, line);) {
    std::istringstream fields(line);
    std::string number, kind, force, access, locked;
    long process = 0;
    fields >> number >> kind >> force >> access >> process >> locked;
    if (kind == "FLOCK" && locked == place && process > 0) return HolderOf(static_cast<unsigned long>(process));
  }
  return std::nullopt;
}

FolderLock::~FolderLock() {
  if (handle_ >= 0) close(static_cast<int>(handle_));
}

}  // namespace hxahost
