#include "host/hxahost/system.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "host/hxahost/text.h"

namespace hxahost {

namespace {

std::string SystemMessage(DWORD error) {
  std::array<wchar_t, 512> text{};
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                     nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
  return Printable(Utf8FromPath(std::wstring(text.data(), length))) + " (error " + std::to_string(error) + ")";
}

struct FreeLocal {
  void operator()(wchar_t** memory) const { LocalFree(memory); }
};

}  // namespace

// The narrow arguments have lost what the ANSI code page lacks; the command line has all of it.
std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  const std::unique_ptr<wchar_t*, FreeLocal> wide(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int index = 1; wide && index < count; ++index) {
    arguments.push_back(Utf8FromPath(std::filesystem::path(wide.get()[index])));
  }
  return arguments;
}

std::filesystem::path ProgramFolder() {
  std::wstring name(32768, L'\0');  // the longest path that there is
  name.resize(GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  return std::filesystem::path(name).parent_path();
}

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

// What the plug-in needs is found beside it, wherever the working directory is.
void LoadPluginLibrary(const std::filesystem::path& file) {
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
