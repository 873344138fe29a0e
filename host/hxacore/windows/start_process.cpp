#include <array>
#include <random>
#include <vector>

#include <windows.h>

#include <sddl.h>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/spawn_failure.h"
#include "host/hxacore/windows/child_process.h"
#include "host/hxacore/windows/command_line.h"
#include "host/hxacore/windows/environment.h"
#include "host/hxacore/windows/wide_text.h"

namespace NKVRHXA20 {

namespace {

using std::chrono::milliseconds;

constexpr DWORD kPipeSize = DWORD{64} << 10U;
// The oldest supported Windows does not have this attribute and refuses it.
constexpr DWORD_PTR kJobListAttribute = 0x2000D;

[[noreturn]] void ThrowLastError(const std::string& path) { ThrowNotStarted(path, ErrorText(GetLastError())); }

[[noreturn]] void ThrowNotCreated(const std::string& path) {
  const DWORD code = GetLastError();
  ThrowNotStarted(path, ErrorText(code), code != ERROR_FILE_NOT_FOUND && code != ERROR_PATH_NOT_FOUND);
}

// Slashes, doubled or not, become single backslashes; a relative path is taken from the working directory.
std::wstring FullPath(const std::string& path) {
  const std::wstring wide = ToWide(path);
  std::wstring full(GetFullPathNameW(wide.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(GetFullPathNameW(wide.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

SECURITY_ATTRIBUTES Inheritable() { return {sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE}; }

struct FreeMemory {
  void operator()(void* memory) const { LocalFree(memory); }
};

// Lets only the user of this process open an object; null if Windows does not report the user.
std::unique_ptr<void, FreeMemory> ForThisUserAlone() {
  HANDLE token = nullptr;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token);
  const UniqueHandle owned = Owned(token);
  alignas(TOKEN_USER) std::array<char, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> user{};
  DWORD size = 0;
  wchar_t* name = nullptr;
  if (!GetTokenInformation(token, TokenUser, user.data(), user.size(), &size) ||
      !ConvertSidToStringSidW(reinterpret_cast<TOKEN_USER*>(user.data())->User.Sid, &name)) {
    return nullptr;
  }
  const std::unique_ptr<void, FreeMemory> ownedName(name);
  const std::wstring text = L"D:P(A;;GA;;;" + std::wstring(name) + L")";
  void* descriptor = nullptr;
  ConvertStringSecurityDescriptorToSecurityDescriptorW(text.c_str(), SDDL_REVISION_1, &descriptor, nullptr);
  return std::unique_ptr<void, FreeMemory>(descriptor);
}

// A pipe without a name cannot be read overlapped, which waiting for output and for the end at once requires. Nobody
// else can predict the name, or open the pipe before the program has it.
UniqueHandle MakePipe(std::wstring& name) {
  std::random_device random;
  name = L"\\\\.\\pipe\\hxacore";
  for (int word = 0; word < 4; ++word) name += L"-" + std::to_wstring(random());
  const auto descriptor = ForThisUserAlone();
  if (!descriptor) return nullptr;
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
  return Owned(CreateNamedPipeW(name.c_str(),
                                PIPE_ACCESS_INBOUND | FILE_FLAG_OVERLAPPED | FILE_FLAG_FIRST_PIPE_INSTANCE,
                                PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, kPipeSize, kPipeSize, 0, &attributes));
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

// The handles that the program inherits, whatever other handles are inheritable, and the job in which it begins. Both
// must outlive the list.
class TAttributeList {
 public:
  TAttributeList(std::vector<HANDLE>& handles, HANDLE& job) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 2, 0, &size);
    memory_.resize(size);
    InitializeProcThreadAttributeList(Get(), 2, 0, &size);
    UpdateProcThreadAttribute(Get(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, handles.data(),
                              handles.size() * sizeof(HANDLE), nullptr, nullptr);
    UpdateProcThreadAttribute(Get(), 0, kJobListAttribute, &job, sizeof job, nullptr, nullptr);
  }
  ~TAttributeList() { DeleteProcThreadAttributeList(Get()); }
  TAttributeList(const TAttributeList&) = delete;
  TAttributeList& operator=(const TAttributeList&) = delete;

  LPPROC_THREAD_ATTRIBUTE_LIST Get() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(memory_.data()); }

 private:
  std::vector<char> memory_;
};

PROCESS_INFORMATION CreateSuspended(const std::string& path, const std::vector<std::string>& arguments, HANDLE input,
                                    HANDLE output, HANDLE job) {
  std::vector<HANDLE> inherited{input, output};
  TAttributeList attributes(inherited, job);
  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = input;
  startup.StartupInfo.hStdOutput = output;
  startup.StartupInfo.hStdError = output;
  startup.lpAttributeList = attributes.Get();

  const std::wstring program = FullPath(path);
  std::wstring environment = ChildEnvironment();
  PROCESS_INFORMATION started{};
  // A busy system may fail with an internal error before the program has begun (Wine does, about once in a thousand
  // runs). The program is created suspended, so it has not run, and another try does no harm.
  constexpr int kTries = 5;
  constexpr DWORD kPauseMilliseconds = 50;
  for (int attempt = 1;; ++attempt) {
    std::wstring line = CommandLine(path, arguments);  // the call may write into it
    if (CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE,
                       CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_UNICODE_ENVIRONMENT | EXTENDED_STARTUPINFO_PRESENT,
                       environment.data(), nullptr, &startup.StartupInfo, &started)) {
      break;
    }
    if (GetLastError() != ERROR_INTERNAL_ERROR || attempt == kTries) ThrowNotCreated(path);
    Sleep(kPauseMilliseconds);
  }
  return started;
}

}  // namespace

ChildProcess StartProcess(const std::string& path, const std::vector<std::string>& arguments) {
  if (IsStillThere(FullPath(path))) ThrowNotStarted(path, "an earlier run of it cannot be ended and goes on");
  ChildProcess child;
  std::wstring pipeName;
  child.output = MakePipe(pipeName);
  if (!child.output) ThrowLastError(path);
  const UniqueHandle write = OpenInheritable(pipeName.c_str(), GENERIC_WRITE);
  if (!write) ThrowLastError(path);
  const UniqueHandle null = OpenInheritable(L"NUL", GENERIC_READ);
  if (!null) ThrowLastError(path);
  UniqueHandle job = MakeJob();
  if (!job) ThrowLastError(path);
  child.job = TRunJob(std::move(job));

  const PROCESS_INFORMATION started = CreateSuspended(path, arguments, null.get(), write.get(), child.job.Get());
  child.process = Owned(started.hProcess);
  const UniqueHandle thread = Owned(started.hThread);
  // Before Windows 10 a program cannot begin in a job. Before Windows 8 a process has at most one job: if the host has
  // one there, the program runs without one, and the processes that it starts are not ended with it.
  AssignProcessToJobObject(child.job.Get(), child.process.get());
  ResumeThread(thread.get());
  return child;
}

void EndProcessTree(const std::string& path, ChildProcess& child) {
  const bool isGone = child.job.End();
  TerminateProcess(child.process.get(), 1);
  WaitForSingleObject(child.process.get(), isGone ? static_cast<DWORD>(milliseconds(kPatience).count()) : 0);
  if (!isGone) KeepUntilGone(FullPath(path), std::move(child.job));
}

}  // namespace NKVRHXA20
