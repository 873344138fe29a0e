#include "host/hxahost/system/folder_lock.h"

#include <windows.h>

namespace hxahost {

// A file opened without sharing. The system deletes it with its only handle, even if the program is killed.
bool FolderLock::Take() {
  const auto file = CreateFileW((folder_ / "hxahost.lock").c_str(), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                                FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  handle_ = reinterpret_cast<std::intptr_t>(file);  // INVALID_HANDLE_VALUE is -1
  return handle_ != -1 || GetLastError() != ERROR_SHARING_VIOLATION;
}

FolderLock::~FolderLock() {
  if (handle_ != -1) CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

}  // namespace hxahost
