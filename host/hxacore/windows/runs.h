#pragma once

#include <string>

#include "host/hxacore/windows/handle.h"
#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// A job for a program and every process that it starts, registered for StopRuns while it is open; or none. Closing it,
// also by the end of this process, ends them.
class HXACORE_API TRunJob {
 public:
  TRunJob() = default;
  explicit TRunJob(UniqueHandle job);
  TRunJob(TRunJob&&) = default;
  TRunJob& operator=(TRunJob&&) = default;
  ~TRunJob();

  HANDLE Get() const { return job_.get(); }

  // Ends its processes and waits until none is left. False: Windows could not end one of them within some seconds.
  bool End() const;

 private:
  UniqueHandle job_;
};

// From now on the program counts as running until the job is empty.
void KeepUntilGone(const std::wstring& program, TRunJob job);
bool IsStillThere(const std::wstring& program);

}  // namespace NKVRHXA20
