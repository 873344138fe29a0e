#include "host/hxahost/system/interruption.h"

#include <string_view>

#include <windows.h>

#include "host/hxahost/system/exit_status.h"

namespace hxahost {

namespace {

struct Request {
  DWORD event;
  ExitStatus status;
  std::string_view line;
};

constexpr std::string_view kInterruptedLine = "hxahost: Interrupted: what ran was ended, and no file was replaced.\r\n";
constexpr std::string_view kTerminatedLine = "hxahost: Terminated: what ran was ended, and no file was replaced.\r\n";

constexpr Request kRequests[] = {
    {CTRL_C_EVENT,        ExitStatus::kInterrupted, kInterruptedLine},
    {CTRL_BREAK_EVENT,    ExitStatus::kInterrupted, kInterruptedLine},
    {CTRL_CLOSE_EVENT,    ExitStatus::kTerminated,  kTerminatedLine },
    {CTRL_LOGOFF_EVENT,   ExitStatus::kTerminated,  kTerminatedLine },
    {CTRL_SHUTDOWN_EVENT, ExitStatus::kTerminated,  kTerminatedLine },
};

void (*cleanUpAtEnd)() = nullptr;

// Windows calls it in a separate thread.
BOOL WINAPI End(DWORD event) {
  for (const Request& request : kRequests) {
    if (request.event != event) continue;
    cleanUpAtEnd();
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_ERROR_HANDLE), request.line.data(), static_cast<DWORD>(request.line.size()), &written,
              nullptr);
    // Not ExitProcess, which waits for locks that the ended threads held.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(request.status));
  }
  return FALSE;
}

}  // namespace

void EndWhenAsked(void (*cleanUp)()) {
  cleanUpAtEnd = cleanUp;
  SetConsoleCtrlHandler(End, TRUE);
}

}  // namespace hxahost
