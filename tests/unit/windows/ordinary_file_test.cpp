#include "platform/ordinary_file.h"

#include <gtest/gtest.h>

#include <memory>

#include <windows.h>

#include "tests/support/temporary_folder.h"

namespace {

std::string RefusalOf(const std::filesystem::path& path) { return OpenOrdinaryFile(path, "rb", kLargestInput).refusal; }

TEST(OrdinaryFileOnWindows, IsNoDevice) {
  for (const wchar_t* const device : {L"NUL", L"\\\\.\\NUL", L"CON", L"CONIN$", L"COM1"}) {
    EXPECT_NE(RefusalOf(device), "") << std::filesystem::path(device);
  }
  EXPECT_EQ(RefusalOf("NUL"), "it is no ordinary file");
}

TEST(OrdinaryFileOnWindows, IsNoNamedPipeThatNobodyWritesTo) {
  const std::wstring name = L"\\\\.\\pipe\\zenx-test-" + std::to_wstring(GetCurrentProcessId());
  const HANDLE pipe = CreateNamedPipeW(name.c_str(), PIPE_ACCESS_DUPLEX, PIPE_TYPE_BYTE, 1, 0, 0, 0, nullptr);
  ASSERT_NE(pipe, INVALID_HANDLE_VALUE);
  EXPECT_EQ(RefusalOf(name), "it is no ordinary file");
  CloseHandle(pipe);
}

TEST(OrdinaryFileOnWindows, IsOpenedWhileItsOwnerWritesIt) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("log", "so far");
  const HANDLE owner = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(owner, INVALID_HANDLE_VALUE);
  EXPECT_EQ(RefusalOf(path), "");
  CloseHandle(owner);
}

}  // namespace
