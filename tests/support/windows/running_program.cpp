#include "tests/support/running_program.h"

#include <stdexcept>
#include <string>

#include <windows.h>

namespace {

HANDLE OpenForChild(const std::filesystem::path& file) {
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  return CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, &inherited,
                     CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// On a busy machine, a process of Wine sometimes ends before its program begins: that is an internal error there.
constexpr int kMostTries = 3;

// Tests pass no quotes and no backslash at the end of an argument.
std::wstring CommandLine(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  std::wstring line = L"\"" + program.wstring() + L"\"";
  for (const std::string& argument : arguments) {
    line += L" \"" + std::filesystem::path(std::u8string(argument.begin(), argument.end())).wstring() + L"\"";
  }
  return line;
}

[[noreturn]] void ThrowNotAsked() {
  throw std::runtime_error("the program cannot be asked to end: error " + std::to_string(GetLastError()));
}

// In the program's console, which this process joins for that, and ignores the event. A program that has just been
// started may not have it yet.
void PressControlC(DWORD process) {
  constexpr int kTries = 1000;
  FreeConsole();
  SetConsoleCtrlHandler(nullptr, TRUE);
  for (int attempt = 1; !AttachConsole(process); ++attempt) {
    if (attempt == kTries) ThrowNotAsked();
    Sleep(10);
  }
  if (!GenerateConsoleCtrlEvent(CTRL_C_EVENT, 0)) ThrowNotAsked();
  FreeConsole();
  AttachConsole(ATTACH_PARENT_PROCESS);
  SetConsoleCtrlHandler(nullptr, FALSE);
}

// As Windows notifies a program: by a thread that begins in a routine of the system, which calls the handlers. Wine
// generates no event but Ctrl-C.
void Notify(HANDLE process, DWORD event) {
  void* const routine = reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernelbase.dll"), "CtrlRoutine"));
  const HANDLE thread =
      routine ? CreateRemoteThread(process, nullptr, 0, reinterpret_cast<LPTHREAD_START_ROUTINE>(routine),
                                   reinterpret_cast<void*>(static_cast<std::uintptr_t>(event)), 0, nullptr)
              : nullptr;
  if (!thread) ThrowNotAsked();
  CloseHandle(thread);
}

}  // namespace

std::intptr_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const std::filesystem::path& out, const std::filesystem::path& err, Console console) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES | STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_HIDE;
  startup.hStdOutput = OpenForChild(out);
  startup.hStdError = OpenForChild(err);
  PROCESS_INFORMATION process{};
  std::wstring line = CommandLine(program, arguments);
  const DWORD flags = console == Console::kOwn ? CREATE_NEW_CONSOLE : 0;
  DWORD error = ERROR_INTERNAL_ERROR;
  for (int tries = 0; error == ERROR_INTERNAL_ERROR && tries < kMostTries; ++tries) {
    const BOOL isStarted = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, flags, nullptr, nullptr,
                                          &startup, &process);
    error = isStarted ? ERROR_SUCCESS : GetLastError();
  }
  CloseHandle(startup.hStdOutput);
  CloseHandle(startup.hStdError);
  if (error != ERROR_SUCCESS) {
    throw std::runtime_error("cannot start " + program.string() + ": error " + std::to_string(error));
  }
  CloseHandle(process.hThread);
  return reinterpret_cast<std::intptr_t>(process.hProcess);
}

void AskProcessToEnd(std::intptr_t process, EndRequest request) {
  const auto handle = reinterpret_cast<HANDLE>(process);
  switch (request) {
    case EndRequest::kInterrupt: return PressControlC(GetProcessId(handle));
    case EndRequest::kTerminate: return Notify(handle, CTRL_LOGOFF_EVENT);
    case EndRequest::kHangUp: return Notify(handle, CTRL_CLOSE_EVENT);
    case EndRequest::kBreak: return Notify(handle, CTRL_BREAK_EVENT);
    case EndRequest::kKill: TerminateProcess(handle, 256);
  }
}

int WaitForProcess(std::intptr_t process) {
  constexpr DWORD kTenMinutes = 600'000;
  const auto handle = reinterpret_cast<HANDLE>(process);
  if (WaitForSingleObject(handle, kTenMinutes) != WAIT_OBJECT_0) AskProcessToEnd(process, EndRequest::kKill);
  WaitForSingleObject(handle, kTenMinutes);
  DWORD status = 0;
  GetExitCodeProcess(handle, &status);
  CloseHandle(handle);
  return static_cast<int>(status);
}
