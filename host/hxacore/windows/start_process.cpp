#include <atomic>
#include <vector>

#include "host/hxacore/spawn_failure.h"
#include "host/hxacore/windows/child_process.h"
#include "host/hxacore/windows/command_line.h"
#include "host/hxacore/windows/environment.h"
#include "host/hxacore/windows/wide_text.h"

namespace NKVRHXA20 {

namespace {

constexpr DWORD kPipeSize = DWORD{64} << 10U;
constexpr DWORD kPatienceMilliseconds = 5000;

[[noreturn]] void ThrowLastError(const std::string& path) { ThrowNotStarted(path, ErrorText(GetLastError())); }

// Slashes, doubled or not, become single backslashes; a relative path is taken from the working directory.
std::wstring FullPath(const std::string& path) {
  const std::wstring wide = ToWide(path);
  std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

SECURITY_ATTRIBUTES Inheritable() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

// A pipe without a name cannot be read overlapped, and only so can one wait for output and for the end at once.
UniqueHandle MakePipe(std::wstring& name) {
  static std::atomic<unsigned> pipes = 0;
  name = L"\\\\.\\pipe\\hxacore-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++pipes);
  return Owned(CreateNamedPipeW(name.c_str(),
                                PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
                                PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, kPipeSize, kPipeSize, 0, nullptr));
}

UniqueHandle OpenInheritable(const wchar_t* name, DWORD access) {
  SECURITY_ATTRIBUTES inheritable = Inheritable();
  return Owned(CreateFileW(name, access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inheritable, OPEN_EXISTING, 0, nullptr));
}

UniqueHandle MakeJob() {
  UniqueHandle job = Owned(CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  if (job) SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

// The handles that the program inherits, whatever else the host holds inheritable. They must outlive it.
class THandleList {
 public:
  explicit THandleList(std::vector<HANDLE>& handles) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    memory_.resize(size);
    InitializeProcThreadAttributeList(Get(), 1, 0, &size);
    UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles.data(),
                              handles.size() * sizeof(HANDLE), nullptr, nullptr);
  }
  ~THandleList() { DeleteProcThreadAttributeList(Get()); }
  THandleList(const THandleList&) = delete;
  THandleList& operator=(const THandleList&) = delete;

  LPPROC_THREAD_ATTRIBUTE_LIST Get() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data()); }

 private:
  std::vector<char> memory_;
};

PROCESS_INFORMATION CreateSuspended(const std::string& path, const std::vector<std::string>& arguments, HANDLE input,
                                    HANDLE output) {
  std::vector<HANDLE> inherited{input, output};
  THandleList handles(inherited);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = input;
  startup.StartupInfo.hStdOutput = output;
  startup.StartupInfo.hStdError = output;
  startup.lpAttributeList = handles.Get();

  const std::wstring program = FullPath(path);
  std::wstring environment = ChildEnvironment();
  PROCESS_INFORMATION started{};
  // A busy system may fail with an internal error before the program has begun (Wine does, about once in a thousand
  // runs). It is created suspended, so nothing of it has run, and trying again does no harm.
  constexpr int kTries = 5;
  constexpr DWORD kPauseMilliseconds = 50;
  for (int attempt = 1;; ++attempt) {
    std::wstring line = CommandLine(path, arguments);  // the call may write into it
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_UNICODE_ENVIRONMENT | EXTENDED_STARTUPINFO_PRESENT,
                       environment.data(), nullptr, &startup.StartupInfo, &started)) {
      break;
    }
    if (GetLastError() != ERROR_INTERNAL_ERROR || attempt == kTries) ThrowLastError(path);
    Sleep(kPauseMilliseconds);
  }
  return started;
}

bool HasProcesses(HANDLE job) {
  JOBOBJECT_BASIC_ACCOUNTING_INFORMATION processes{};
  return QueryInformationJobObject(job, JobObjectBasicAccountingInformation, &processes, sizeof processes, nullptr) &&
         processes.ActiveProcesses > 0;
}

}  // namespace

ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments) {
  ChildProcess child;
  std::wstring pipeName;
  child.output = MakePipe(pipeName);
  if (!child.output) ThrowLastError(path);
  const UniqueHandle write = OpenInheritable(pipeName.c_str(), GENERIC_WRITE);
  if (!write) ThrowLastError(path);
  const UniqueHandle null = OpenInheritable(L"NUL", GENERIC_READ);
  if (!null) ThrowLastError(path);
  child.job = MakeJob();
  if (!child.job) ThrowLastError(path);

  const PROCESS_INFORMATION started = CreateSuspended(path, arguments, null.get(), write.get());
  child.process = Owned(started.hProcess);
  const UniqueHandle thread = Owned(started.hThread);
  // Before Windows 8 a process has one job at most. There, in a host that has its own, the program runs without one,
  // and what it starts is not ended with it.
  AssignProcessToJobObject(child.job.get(), child.process.get());
  ResumeThread(thread.get());
  return child;
}

void EndProcessTree(const ChildProcess& child) {
  TerminateJobObject(child.job.get(), 1);
  TerminateProcess(child.process.get(), 1);
  const ULONGLONG giveUp = GetTickCount64() + kPatienceMilliseconds;
  WaitForSingleObject(child.process.get(), kPatienceMilliseconds);
  while (HasProcesses(child.job.get()) && GetTickCount64() < giveUp) Sleep(1);
}

}  // namespace NKVRHXA20
