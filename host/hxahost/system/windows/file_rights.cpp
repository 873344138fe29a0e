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

}  // namespace hxahost
