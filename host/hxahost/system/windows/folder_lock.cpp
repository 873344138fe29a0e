#include "host/hxahost/system/folder_lock.h"

#include <array>
#include <sstream>

#include <windows.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/utf8.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

constexpr ULONGLONG kPatience = 3000;  // milliseconds
constexpr DWORD kPause = 20;

fs::path LockFile(const fs::path& folder) { return folder / "hxahost.lock"; }

// Writes who has the lock, for other programs.
void WriteHolder(HANDLE file) {
  std::ostringstream text;
  text << GetCurrentProcessId() << ' ' << std::time(nullptr) << '\n';
  const std::string bytes = text.str();
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  SetEndOfFile(file);
}

std::string ProgramOf(unsigned long process) {
  const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, process);
  std::array<wchar_t, 1024> name{};
  auto size = static_cast<DWORD>(name.size());
  const bool isKnown = handle && QueryFullProcessImageNameW(handle, 0, name.data(), &size);
  if (handle) CloseHandle(handle);
  return isKnown ? Utf8FromPath(fs::path(name.data()).stem()) : "";
}

// Why the lock file could not be opened.
enum class Obstacle { kNothing, kAnotherProgram, kMissing, kDenied };

// A program that has the lock is the only one that prevents reading without shared writing.
Obstacle ObstacleOf(const fs::path& name) {
  const HANDLE file =
      CreateFileW(name.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file != INVALID_HANDLE_VALUE) {
    CloseHandle(file);
    return Obstacle::kNothing;
  }
  switch (GetLastError()) {
    case ERROR_SHARING_VIOLATION: return Obstacle::kAnotherProgram;
    case ERROR_ACCESS_DENIED: return Obstacle::kDenied;
    default: return Obstacle::kMissing;
  }
}

}  // namespace

// A file that only one program can open for writing. The system deletes it with its only handle, even if the program is
// killed. Other programs can read it. While one of them still does, the name of a deleted file remains in use, and
// opening it is denied. It is also denied to a user without the right to write to the folder.
bool FolderLock::Take() {
  const fs::path name = LockFile(folder_);
  const ULONGLONG giveUp = GetTickCount64() + kPatience;
  bool wasMissing = false;
  for (;;) {
    const auto file = CreateFileW(name.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, nullptr, OPEN_ALWAYS,
                                  FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    handle_ = reinterpret_cast<std::intptr_t>(file);  // INVALID_HANDLE_VALUE is -1
    if (handle_ != -1) WriteHolder(file);
    const DWORD error = handle_ != -1 ? ERROR_SUCCESS : GetLastError();
    if (error != ERROR_ACCESS_DENIED) return error != ERROR_SHARING_VIOLATION;
    const Obstacle obstacle = ObstacleOf(name);
    if (obstacle == Obstacle::kAnotherProgram) return false;
    if (obstacle == Obstacle::kNothing || (obstacle == Obstacle::kMissing && wasMissing)) return true;
    wasMissing = obstacle == Obstacle::kMissing;  // it can have been deleted meanwhile
    if (GetTickCount64() >= giveUp) {
      throw ProgramError(
          ExitStatus::kQueryFailed,
          "zenx\\hxahost.lock of an ended collection cannot be opened: end the program that has it open, or "
          "give this user the right to write to it.");
    }
    Sleep(kPause);
  }
}

std::optional<LockHolder> FolderLock::Holder() const {
  const HANDLE file =
      CreateFileW(LockFile(folder_).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::array<char, 64> bytes{};
  DWORD size = 0;
  const bool isRead = ReadFile(file, bytes.data(), bytes.size(), &size, nullptr) != 0;
  CloseHandle(file);
  std::istringstream text(std::string(bytes.data(), isRead ? size : 0));
  LockHolder holder;
  if (!(text >> holder.process >> holder.since)) return std::nullopt;
  holder.program = ProgramOf(holder.process);
  return holder;
}

FolderLock::~FolderLock() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace hxahost
