#include "host/hxahost/system/file_rights.h"

#include <memory>

#include <windows.h>

#include <aclapi.h>

#include "host/hxahost/system/windows/access_list.h"
#include "host/hxahost/system/windows/path_prefix.h"

namespace fs = std::filesystem;

namespace hxahost {

namespace {

struct FreeDescriptor {
  void operator()(void* memory) const { LocalFree(memory); }
};

using ListReader = bool (*)(ACL* list);

// False if the system does not report it.
bool ListSays(ListReader reader, const fs::path& path) {
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  std::wstring name = path.wstring();  // the call takes a pointer that is not const
  const DWORD failure = GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                              &list, nullptr, &descriptor);
  const std::unique_ptr<void, FreeDescriptor> owned(descriptor);
  return failure == ERROR_SUCCESS && reader(list);
}

bool IsLink(const fs::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// The path after all links; empty if the system does not report it.
fs::path FinalPath(const fs::path& path) {
  constexpr DWORD kAllShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE file =
      CreateFileW(path.c_str(), 0, kAllShare, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return {};
  std::wstring name(32768, L'\0');  // no path is longer
  name.resize(GetFinalPathNameByHandleW(file, name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED));
  CloseHandle(file);
  return WithoutPrefix(name);
}

}  // namespace

bool OthersMayWrite(const fs::path& path) { return ListSays(LetsOthersWrite, path); }

// The system does not report the folders of links between the first and the last of a chain.
std::vector<fs::path> UnsafeFoldersOfLink(const fs::path& link) {
  std::vector<fs::path> unsafe;
  if (!IsLink(link)) return unsafe;
  const fs::path final = FinalPath(link);
  const fs::path folder = final.parent_path();
  if (!fs::is_directory(final) && OthersMayWrite(folder)) unsafe.push_back(folder);
  for (fs::path place = final; place.has_relative_path(); place = place.parent_path()) {
    if (ListSays(LetsOthersExchange, place.parent_path())) unsafe.insert(unsafe.begin(), place.parent_path());
  }
  return unsafe;
}

void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) {
  PSID owner = nullptr;
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  std::wstring name = from.wstring();  // the calls take a pointer that is not const
  constexpr SECURITY_INFORMATION kOwner = OWNER_SECURITY_INFORMATION;
  const DWORD failure = GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, kOwner | DACL_SECURITY_INFORMATION, &owner,
                                              nullptr, &list, nullptr, &descriptor);
  const std::unique_ptr<void, FreeDescriptor> owned(descriptor);
  if (failure != ERROR_SUCCESS) return;
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  GetSecurityDescriptorControl(descriptor, &control, &revision);
  const SECURITY_INFORMATION rights =
      DACL_SECURITY_INFORMATION | ((control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                                      : UNPROTECTED_DACL_SECURITY_INFORMATION);
  name = to.wstring();
  // Only administrators may set another owner.
  if (SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, kOwner | rights, owner, nullptr, list, nullptr) ==
      ERROR_SUCCESS) {
    return;
  }
  SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, rights, nullptr, nullptr, list, nullptr);
}

}  // namespace hxahost
