#include "tests/support/test_system.h"

#include <array>
#include <cstdint>
#include <string_view>

#include <windows.h>

#include <aclapi.h>
#include <psapi.h>
#include <tlhelp32.h>

std::filesystem::path ProgramFolder() {
  std::array<wchar_t, 1024> program{};
  GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
  return std::filesystem::path(program.data()).parent_path();
}

bool IsRunning(unsigned long process) {
  const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
  if (!handle) return false;
  const bool isRunning = WaitForSingleObject(handle, 0) == WAIT_TIMEOUT;
  CloseHandle(handle);
  return isRunning;
}

std::vector<unsigned long> ProcessesOf(const std::filesystem::path& programs) {
  std::array<DWORD, 4096> all{};
  DWORD size = 0;
  EnumProcesses(all.data(), sizeof all, &size);
  std::vector<unsigned long> processes;
  for (DWORD index = 0; index < size / sizeof(DWORD); ++index) {
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, all[index]);
    std::array<wchar_t, 1024> program{};
    DWORD length = program.size();
    if (handle && QueryFullProcessImageNameW(handle, 0, program.data(), &length) &&
        std::wstring_view(program.data(), length).starts_with(programs.wstring()) && IsRunning(all[index])) {
      processes.push_back(all[index]);
    }
    if (handle) CloseHandle(handle);
  }
  return processes;
}

// Handles are small multiples of four. Wine returns 0 for their number, so each is tried.
std::size_t OpenHandleCount() {
  std::size_t count = 0;
  for (std::uintptr_t value = 4; value < 0x8000; value += 4) {
    DWORD flags = 0;
    if (GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags)) ++count;
  }
  return count;
}

bool HasChildren() {
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof entry;
  bool isFound = false;
  for (BOOL more = Process32FirstW(snapshot, &entry); more && !isFound; more = Process32NextW(snapshot, &entry)) {
    isFound = entry.th32ParentProcessID == GetCurrentProcessId();
  }
  CloseHandle(snapshot);
  return isFound;
}

void SetVariable(const std::string& name, const std::string& value) {
  SetEnvironmentVariableA(name.c_str(), value.c_str());
}

void LetOthersWrite(const std::filesystem::path& path) {
  wchar_t everyone[] = L"Everyone";
  std::wstring name = path.wstring();
  EXPLICIT_ACCESS_W access{};
  BuildExplicitAccessWithNameW(&access, everyone, GENERIC_ALL, GRANT_ACCESS, NO_INHERITANCE);
  ACL* list = nullptr;
  SetEntriesInAclW(1, &access, nullptr, &list);
  SetNamedSecurityInfoW(name.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, list, nullptr);
  LocalFree(list);
}

std::size_t MemoryInUse() {
  PROCESS_MEMORY_COUNTERS memory{};
  memory.cb = sizeof memory;
  K32GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof memory);
  return memory.PagefileUsage;
}

bool UnloadLibrary(const std::filesystem::path& file) {
  FreeLibrary(GetModuleHandleW(file.c_str()));
  return GetModuleHandleW(file.c_str()) == nullptr;
}

const int kManyRuns = 300;

const std::size_t kCasesForOneRun = 37;
