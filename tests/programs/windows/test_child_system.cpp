#include "tests/programs/test_child_system.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace {

std::string ToUtf8(const wchar_t* wide) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
  text.pop_back();
  return text;
}

// Loading the library takes longer than everything else that a child does, as it depends on half of the desktop, so it
// is only loaded if it is needed.
wchar_t** SplitCommandLine(int& count) {
  const HMODULE shell = LoadLibraryW(L"shell32.dll");
  const auto split = reinterpret_cast<decltype(&CommandLineToArgvW)>(
      reinterpret_cast<void*>(GetProcAddress(shell, "CommandLineToArgvW")));
  return split(GetCommandLineW(), &count);
}

}  // namespace

std::vector<std::string> ExactArguments(int, char**) {
  int count = 0;
  wchar_t** const words = SplitCommandLine(count);
  std::vector<std::string> arguments;
  for (int word = 1; word < count; ++word) arguments.push_back(ToUtf8(words[word]));
  LocalFree(words);
  return arguments;
}

void WriteBytesAsTheyAre() {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
}

// The C runtime and the process have separate handles for standard output.
void CloseStandardOutput() {
  std::fclose(stdout);
  std::fclose(stderr);
  CloseHandle(GetStdHandle(STD_OUTPUT_HANDLE));
}

void IgnoreTermination() {
  SetConsoleCtrlHandler([](DWORD) -> BOOL { return TRUE; }, TRUE);
}

unsigned long OwnProcessId() { return GetCurrentProcessId(); }

// With the status of an access violation, but without a message box.
void Crash() {
  TerminateProcess(GetCurrentProcess(), static_cast<UINT>(STATUS_ACCESS_VIOLATION));
  std::exit(2);
}

void LeaveBehind(Ties ties, Rest rest, const std::string& file) {
  std::array<char, 1024> program{};
  GetModuleFileNameA(nullptr, program.data(), static_cast<DWORD>(program.size()));
  const std::map<Rest, std::string> modes = {
      {Rest::kSleeps, "rest-sleeps"},
      {Rest::kFloods, "rest-floods"},
      {Rest::kBreeds, "rest-breeds"}
  };
  std::string line = "test_child " + modes.at(rest) + " \"" + file + "\"";
  STARTUPINFOA startup{};
  startup.cb = sizeof startup;
  const DWORD flags = ties == Ties::kAll ? 0 : DETACHED_PROCESS | CREATE_NEW_PROCESS_GROUP;
  PROCESS_INFORMATION started{};
  if (!CreateProcessA(program.data(), line.data(), nullptr, nullptr, ties != Ties::kNothing, flags, nullptr, nullptr,
                      &startup, &started)) {
    std::exit(3);
  }
  CloseHandle(started.hThread);
  CloseHandle(started.hProcess);
}

std::vector<std::string> Environment() {
  std::vector<std::string> variables;
  wchar_t* const strings = GetEnvironmentStringsW();
  for (const wchar_t* next = strings; *next; next += std::wstring_view(next).size() + 1) {
    variables.push_back(ToUtf8(next));
  }
  FreeEnvironmentStringsW(strings);
  return variables;
}
