#include <algorithm>
#include <array>

#include "host/hxacore/operating_system.h"
#include "host/hxacore/windows/child_process.h"

namespace NKVRHXA20 {

namespace {

DWORD Remaining(ULONGLONG deadline) {
  const ULONGLONG now = GetTickCount64();
  return static_cast<DWORD>(std::min<ULONGLONG>(deadline > now ? deadline - now : 0, INFINITE - 1));
}

bool HasEnded(const ChildProcess& child, DWORD wait) {
  return WaitForSingleObject(child.process.get(), wait) == WAIT_OBJECT_0;
}

bool IsTooMuch(const std::string& output) { return output.size() > kOutputLimit; }

// One read of the pipe at a time, which runs while the caller waits.
class TPipeReader {
 public:
  explicit TPipeReader(HANDLE pipe) : pipe_(pipe), arrived_(Owned(CreateEventW(nullptr, TRUE, FALSE, nullptr))) {}
  // A running read would write to memory that is about to be freed.
  ~TPipeReader() {
    std::string unwanted;
    Cancel(unwanted);
  }
  TPipeReader(const TPipeReader&) = delete;
  TPipeReader& operator=(const TPipeReader&) = delete;

  // Signalled at the end of the read.
  HANDLE Arrived() const { return arrived_.get(); }

  void Start(std::size_t atMost = std::string::npos) {
    operation_ = {};
    operation_.hEvent = arrived_.get();
    const auto size = static_cast<DWORD>(std::min(atMost, buffer_.size()));
    isGoing_ = ReadFile(pipe_, buffer_.data(), size, nullptr, &operation_) || GetLastError() == ERROR_IO_PENDING;
    if (!isGoing_) SetEvent(arrived_.get());
  }

  // Waits for the read and appends its bytes. False: the pipe is at its end.
  bool Finish(std::string& output) {
    if (!isGoing_) return false;
    isGoing_ = false;
    DWORD count = 0;
    if (!GetOverlappedResult(pipe_, &operation_, &count, TRUE)) return false;
    output.append(buffer_.data(), count);
    return true;
  }

  // Ends a running read; bytes that it has already received are appended.
  void Cancel(std::string& output) {
    if (!isGoing_) return;
    CancelIoEx(pipe_, &operation_);
    Finish(output);
  }

 private:
  HANDLE pipe_;
  UniqueHandle arrived_;
  OVERLAPPED operation_{};
  bool isGoing_ = false;
  std::array<char, std::size_t{64} << 10U> buffer_;
};

// The program has ended: all of its output is in the pipe. Only that is read, because processes that it started may
// write for ever.
OutputEnd TakeTheRest(HANDLE pipe, TPipeReader& reader, std::string& output) {
  reader.Cancel(output);
  DWORD waiting = 0;
  bool isOpen = PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) != 0;
  const std::size_t whole = output.size() + waiting;
  while (isOpen && output.size() < whole) {
    reader.Start(whole - output.size());
    isOpen = reader.Finish(output);
  }
  if (IsTooMuch(output)) return OutputEnd::kTooMuch;
  isOpen = isOpen && PeekNamedPipe(pipe, nullptr, 0, nullptr, nullptr, nullptr);
  return isOpen ? OutputEnd::kLeftOpen : OutputEnd::kComplete;
}

}  // namespace

OutputEnd CollectOutput(const ChildProcess& child, ULONGLONG deadline, std::string& output) {
  TPipeReader reader(child.output.get());
  const HANDLE events[] = {reader.Arrived(), child.process.get()};
  for (;;) {
    reader.Start();
    const DWORD left = Remaining(deadline);
    const DWORD first = WaitForMultipleObjects(2, events, FALSE, left);
    if (left == 0 || first == WAIT_TIMEOUT) return OutputEnd::kTooLong;
    if (first == WAIT_OBJECT_0 && !reader.Finish(output)) {
      return HasEnded(child, Remaining(deadline)) ? OutputEnd::kComplete : OutputEnd::kTooLong;
    }
    if (IsTooMuch(output)) return OutputEnd::kTooMuch;
    if (HasEnded(child, 0)) return TakeTheRest(child.output.get(), reader, output);
  }
}

}  // namespace NKVRHXA20
