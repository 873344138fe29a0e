#include "host/hxahost/system/this_program.h"

#include <memory>

#include <windows.h>

#include <shellapi.h>

#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

struct FreeArguments {
  void operator()(wchar_t** memory) const { LocalFree(memory); }
};

}  // namespace

// The narrow arguments lack characters that the ANSI code page lacks; the command line has every character.
std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  const std::unique_ptr<wchar_t*, FreeArguments> wide(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int index = 1; wide && index < count; ++index) {
    arguments.push_back(Utf8FromPath(std::filesystem::path(wide.get()[index])));
  }
  return arguments;
}

std::filesystem::path ProgramFile() {
  std::wstring name(32768, L'\0');  // the longest possible path
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return name;
}

std::filesystem::path ProgramFolder() { return ProgramFile().parent_path(); }

unsigned long ProcessId() { return GetCurrentProcessId(); }

// Processes of other users cannot be opened.
bool IsProcessRunning(unsigned long process) {
  const HANDLE opened = OpenProcess(SYNCHRONIZE, FALSE, process);
  if (opened == nullptr) return GetLastError() != ERROR_INVALID_PARAMETER;
  const bool isRunning = WaitForSingleObject(opened, 0) == WAIT_TIMEOUT;
  CloseHandle(opened);
  return isRunning;
}

}  // namespace hxahost
