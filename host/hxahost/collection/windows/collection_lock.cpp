#include "host/hxahost/collection/collection_lock.h"

#include <windows.h>

namespace hxahost {

namespace {

// The system deletes the file with its only handle, also when the program is ended by force.
HANDLE OpenAlone(const std::filesystem::path& file) {
  return CreateFileW(file.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                     FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
}

}  // namespace

CollectionLock::CollectionLock(const std::filesystem::path& folder, const std::function<void()>& onWait) {
  constexpr DWORD kPauseMilliseconds = 100;
  const std::filesystem::path file = folder / "hxahost.lock";
  HANDLE handle = OpenAlone(file);
  bool isWaiting = false;
  while (handle == INVALID_HANDLE_VALUE && GetLastError() == ERROR_SHARING_VIOLATION) {
    if (!isWaiting) onWait();
    isWaiting = true;
    Sleep(kPauseMilliseconds);
    handle = OpenAlone(file);
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle);  // INVALID_HANDLE_VALUE is -1
}

CollectionLock::~CollectionLock() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace hxahost
