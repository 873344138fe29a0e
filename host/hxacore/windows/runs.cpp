#include "host/hxacore/windows/runs.h"

#include <map>
#include <mutex>
#include <set>
#include <utility>

#include "host/hxacore/operating_system.h"

namespace NKVRHXA20 {

namespace {

struct Runs {
  std::mutex mutex;
  std::set<HANDLE> jobs;
  std::multimap<std::wstring, TRunJob> left;  // by program: jobs that could not be ended
};

// Never destroyed: a thread may still be running a program when this process ends.
Runs& AllRuns() {
  static auto* const runs = new Runs;
  return *runs;
}

bool HasProcesses(HANDLE job) {
  JOBOBJECT_BASIC_ACCOUNTING_INFORMATION processes{};
  return QueryInformationJobObject(job, JobObjectBasicAccountingInformation, &processes, sizeof processes, nullptr) &&
         processes.ActiveProcesses > 0;
}

bool EndJob(HANDLE job, ULONGLONG giveUp) {
  TerminateJobObject(job, 1);
  while (HasProcesses(job)) {
    if (GetTickCount64() >= giveUp) return false;
    Sleep(1);
  }
  return true;
}

ULONGLONG WhenToGiveUp() { return GetTickCount64() + std::chrono::milliseconds(kPatience).count(); }

}  // namespace

TRunJob::TRunJob(UniqueHandle job) : job_(std::move(job)) {
  const std::lock_guard lock(AllRuns().mutex);
  AllRuns().jobs.insert(job_.get());
}

TRunJob::~TRunJob() {
  if (!job_) return;
  const std::lock_guard lock(AllRuns().mutex);
  AllRuns().jobs.erase(job_.get());
  job_.reset();
}

bool TRunJob::End() const { return EndJob(job_.get(), WhenToGiveUp()); }

void KeepUntilGone(const std::wstring& program, TRunJob job) {
  const std::lock_guard lock(AllRuns().mutex);
  AllRuns().left.emplace(program, std::move(job));
}

bool IsStillThere(const std::wstring& program) {
  const std::lock_guard lock(AllRuns().mutex);
  const auto [begin, end] = AllRuns().left.equal_range(program);
  for (auto each = begin; each != end; ++each) {
    if (HasProcesses(each->second.Get())) return true;
  }
  return false;
}

// The mutex stays locked: no run begins any more.
void StopRuns() {
  AllRuns().mutex.lock();
  const ULONGLONG giveUp = WhenToGiveUp();
  for (const HANDLE job : AllRuns().jobs) EndJob(job, giveUp);
}

}  // namespace NKVRHXA20
