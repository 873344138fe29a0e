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

// Tests pass no quotes and no backslash at the end of an argument.
std::wstring CommandLine(const std::filesystem::path& program, const std::vector<std::string>& arguments) {
  std::wstring line = L"\"" + program.wstring() + L"\"";
  for (const std::string& argument : arguments) {
    line += L" \"" + std::filesystem::path(std::u8string(argument.begin(), argument.end())).wstring() + L"\"";
  }
  return line;
}

}  // namespace

std::intptr_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const std::filesystem::path& out, const std::filesystem::path& err) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = OpenForChild(out);
  startup.hStdError = OpenForChild(err);
  PROCESS_INFORMATION process{};
  std::wstring line = CommandLine(program, arguments);
  const BOOL isStarted = CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, CREATE_NEW_PROCESS_GROUP,
                                        nullptr, nullptr, &startup, &process);
  const DWORD error = GetLastError();
  CloseHandle(startup.hStdOutput);
  CloseHandle(startup.hStdError);
  if (!isStarted) {
    throw std::runtime_error("cannot start " + program.string() + ": error " + std::to_string(error));
  }
  CloseHandle(process.hThread);
  return reinterpret_cast<std::intptr_t>(process.hProcess);
}

void AskProcessToEnd(std::intptr_t process, EndRequest request) {
  const auto handle = reinterpret_cast<HANDLE>(process);
  if (request == EndRequest::kKill) {
    TerminateProcess(handle, 256);
  } else if (request != EndRequest::kInterrupt || !GenerateConsoleCtrlEvent(CTRL_BREAK_EVENT, GetProcessId(handle))) {
    throw std::runtime_error("the program cannot be asked to end: error " + std::to_string(GetLastError()));
  }
}

int WaitForProcess(std::intptr_t process) {
  const auto handle = reinterpret_cast<HANDLE>(process);
  WaitForSingleObject(handle, INFINITE);
  DWORD status = 0;
  GetExitCodeProcess(handle, &status);
  CloseHandle(handle);
  return static_cast<int>(status);
}
