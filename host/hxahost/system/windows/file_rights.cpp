#include "host/hxahost/system/file_rights.h"

#include <memory>

#include <windows.h>

#include <aclapi.h>

#include "host/hxahost/system/windows/access_list.h"

namespace hxahost {

namespace {

struct FreeDescriptor {
  void operator()(void* memory) const { LocalFree(memory); }
};

}  // namespace

bool OthersMayWrite(const std::filesystem::path& path) {
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  std::wstring name = path.wstring();  // the call takes it without const
  const DWORD failure = GetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                              &list, nullptr, &descriptor);
  const std::unique_ptr<void, FreeDescriptor> owned(descriptor);
  return failure == ERROR_SUCCESS && LetsOthersWrite(list);
}

void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) {
  PSID owner = nullptr;
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  std::wstring name = from.wstring();  // the calls take it without const
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
  // Another owner may be named by administrators alone.
  if (SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, kOwner | rights, owner, nullptr, list, nullptr) ==
      ERROR_SUCCESS) {
    return;
  }
  SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, rights, nullptr, nullptr, list, nullptr);
}

}  // namespace hxahost
