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

// One read of the pipe at a time, which goes on while we wait for it.
class TPipeReader {
 public:
  explicit TPipeReader(HANDLE pipe) : pipe_(pipe), arrived_(Owned(CreateEventW(nullptr, TRUE, FALSE, nullptr))) {}
  // A read that goes on writes to the memory that is about to go.
  ~TPipeReader() {
    std::string unwanted;
    Cancel(unwanted);
  }
  TPipeReader(const TPipeReader&) = delete;
  TPipeReader& operator=(const TPipeReader&) = delete;

  // Signalled when the read is over.
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

  // Ends the read, if one goes on; bytes that came before are not lost.
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

// The program has ended: all that it wrote lies in the pipe. Only that is read, because what it has started may write
// for ever.
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
