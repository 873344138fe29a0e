#include "host/hxahost/system/system.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

std::string SystemMessage(DWORD error) {
  std::array<wchar_t, 512> text{};
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                     nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  return Printable(Utf8FromPath(std::wstring(text.data(), length))) + " (error " + std::to_string(error) + ")";
}

struct FreeArguments {
  void operator()(wchar_t** memory) const { LocalFree(memory); }
};

}  // namespace

// The narrow arguments have lost what the ANSI code page lacks; the command line has all of it.
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
  std::wstring name(32768, L'\0');  // the longest path that there is
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return name;
}

std::filesystem::path ProgramFolder() { return ProgramFile().parent_path(); }

unsigned long ProcessId() { return GetCurrentProcessId(); }

bool StandardErrorIsTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

bool StandardOutputIsTerminal() {
  DWORD mode = 0;
  return GetConsoleMode(GetStdHandle(STD_OUTPUT_HANDLE), &mode) != 0;
}

// The window's width: the buffer behind it may be wider.
std::optional<std::size_t> TerminalWidth(TerminalStream stream) {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  const DWORD handle = stream == TerminalStream::kOutput ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE;
  if (GetConsoleScreenBufferInfo(GetStdHandle(handle), &info) == 0) return std::nullopt;
  const int width = info.srWindow.Right - info.srWindow.Left + 1;
  return width > 0 ? std::optional(static_cast<std::size_t>(width)) : std::nullopt;
}

bool TerminalShowsUtf8() { return GetConsoleOutputCP() == CP_UTF8; }

// Older consoles show escape sequences as text: they must be asked to read them.
bool TerminalTakesColours() {
  constexpr DWORD kReadSequences = 0x0004;
  const auto output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(output, &mode) != 0 && SetConsoleMode(output, mode | kReadSequences) != 0;
}

void PutVariable(const char* name, const std::optional<std::string>& bytes) {
  SetEnvironmentVariableA(name, bytes ? bytes->c_str() : nullptr);
}

void PutVariable(const char* name, const std::filesystem::path& path) {
  SetEnvironmentVariableW(std::filesystem::path(name).c_str(), path.c_str());
}

// The system deletes it with its last handle, also when the program is ended by force: what opens it has to share
// deleting.
PrivateFile::PrivateFile(std::string_view bytes) {
  std::error_code error;
  const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
  auto file = INVALID_HANDLE_VALUE;
  for (unsigned number = 0; number < 1000 && file == INVALID_HANDLE_VALUE; ++number) {
    path_ = folder / ("hxahost-" + std::to_string(ProcessId()) + "-" + std::to_string(number) + ".log");
    file = CreateFileW(path_.c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                       nullptr, CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  }
  DWORD written = 0;
  if (file == INVALID_HANDLE_VALUE ||
      WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) == 0 ||
      written != bytes.size()) {
    if (file != INVALID_HANDLE_VALUE) CloseHandle(file);
    throw ProgramError(ExitStatus::kQueryFailed, "The log of the bundle cannot be put into " +
                                                     Printable(Utf8FromPath(folder)) +
                                                     ": see whether there is room, and whether you may write there.");
  }
  handle_ = reinterpret_cast<std::intptr_t>(file);
}

PrivateFile::~PrivateFile() { CloseHandle(reinterpret_cast<HANDLE>(handle_)); }

// What the plug-in needs is found beside it and in the system's folders. The working directory, in which anything may
// lie, is searched neither now nor for a library that one of these loads later.
void LoadPluginLibrary(const std::filesystem::path& file) {
  SetDllDirectoryW(L"");
  SetErrorMode(SEM_FAILCRITICALERRORS);  // no window that waits for somebody to close it
  const auto library =
      LoadLibraryExW(file.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_DEFAULT_DIRS);
  if (library == nullptr) throw std::runtime_error(SystemMessage(GetLastError()));
}

StandardStreams::StandardStreams() : consoleBefore_(GetConsoleOutputCP()) {
  _setmode(_fileno(stdout), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

StandardStreams::~StandardStreams() {
  if (consoleBefore_ != 0) SetConsoleOutputCP(consoleBefore_);
}

}  // namespace hxahost
