#include "host/hxacore/windows/child_process.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include <aclapi.h>

#include "tests/support/test_system.h"

namespace {

using namespace NKVRHXA20;

std::string ChildPath() { return (ProgramFolder() / "test_child.exe").string(); }

std::wstring NameOf(HANDLE pipe) {
  alignas(FILE_NAME_INFO) std::array<char, 1024> info{};
  if (!GetFileInformationByHandleEx(pipe, FileNameInfo, info.data(), info.size())) return L"";
  const auto& name = *reinterpret_cast<FILE_NAME_INFO*>(info.data());
  return {name.FileName, name.FileNameLength / sizeof(wchar_t)};
}

// If another process could open the pipe again, anybody who knows its name could.
TEST(ChildProcess, HasAPipeThatOthersCannotPredictOrOpen) {
  ChildProcess one = StartProcess(ChildPath(), {"sleep", "300"});
  ChildProcess other = StartProcess(ChildPath(), {"sleep", "300"});
  const std::wstring name = NameOf(one.output.get());
  EXPECT_GT(name.size(), 30U);
  EXPECT_NE(name, NameOf(other.output.get()));
  EXPECT_EQ(name.find(std::to_wstring(GetCurrentProcessId()) + L"-"), std::wstring::npos);
  for (ChildProcess* const child : {&one, &other}) EndProcessTree(ChildPath(), *child);
}

TEST(ChildProcess, HasAPipeThatOnlyItsUserMayOpen) {
  ChildProcess child = StartProcess(ChildPath(), {"sleep", "300"});
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  ASSERT_EQ(GetSecurityInfo(child.output.get(), SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                            nullptr, &descriptor),
            DWORD{ERROR_SUCCESS});
  ASSERT_NE(list, nullptr) << "everybody may";
  EXPECT_EQ(list->AceCount, 1);
  LocalFree(descriptor);
  EndProcessTree(ChildPath(), child);
}

}  // namespace
