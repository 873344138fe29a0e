#include "host/hxacore/posix/process_tree.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <set>
#include <sstream>
#include <thread>

#include "host/hxacore/whole_file.h"

namespace NKVRHXA20 {

namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds kPatience{5};

struct Process {
  pid_t pid = 0;
  pid_t parent = 0;
  pid_t group = 0;
  bool isMarked = false;
};

// What can be read of it: a process may end, and what the system tells of it with it.
std::string FileContents(const fs::path& file) {
  std::string text;
  ReadWholeFile(file, text);
  return text;
}

bool HasMark(const fs::path& folder, const std::string& mark) {
  const std::string environment = '\0' + FileContents(folder / "environ");
  return environment.find('\0' + mark + '\0') != std::string::npos;
}

// Only the run has the end that writes; the host and copies of it that fork have the other.
bool CanWriteTo(const fs::path& file, const fs::path& pipe) {
  std::error_code gone;
  return fs::read_symlink(file, gone) == pipe &&
         (fs::symlink_status(file, gone).permissions() & fs::perms::owner_write) != fs::perms::none;
}

bool HoldsPipe(const fs::path& folder, const fs::path& pipe) {
  std::error_code failure;
  for (fs::directory_iterator file(folder / "fd", failure), end; !failure && file != end; file.increment(failure)) {
    if (CanWriteTo(*file, pipe)) return true;
  }
  return false;
}

// "417 (name of (the) program) S 1 417 ...": state, parent and group follow the last parenthesis.
bool ReadStatus(const fs::path& folder, Process& process) {
  const std::string status = FileContents(folder / "stat");
  const auto nameEnd = status.rfind(')');
  if (nameEnd == std::string::npos) return false;
  std::istringstream fields(status.substr(nameEnd + 1));
  char state = 'X';
  fields >> state >> process.parent >> process.group;
  return !fields.fail() && state != 'Z' && state != 'X';
}

// All processes that run, without this one. What the system does not let us see of them is not there.
std::vector<Process> RunningProcesses(const ChildProcess& child) {
  std::error_code failure;
  const fs::path pipe = fs::read_symlink("/proc/self/fd/" + std::to_string(child.output.Get()), failure);
  const bool isGroupOfRun = !IsReaped(child);
  std::vector<Process> processes;
  for (fs::directory_iterator entry("/proc", failure), end; !failure && entry != end; entry.increment(failure)) {
    Process process;
    process.pid = static_cast<pid_t>(std::atoi(entry->path().filename().c_str()));
    if (process.pid <= 0 || process.pid == getpid() || !ReadStatus(*entry, process)) continue;
    process.isMarked =
        (isGroupOfRun && process.group == child.pid) || HasMark(*entry, child.mark) || HoldsPipe(*entry, pipe);
    processes.push_back(process);
  }
  return processes;
}

// The processes of the run: in its group, with its mark or its pipe, and whatever these have started. A child subreaper
// would make the orphans among them children of the host, where they are mixed with those of other runs and its own.
std::set<pid_t> Members(const ChildProcess& child) {
  const std::vector<Process> processes = RunningProcesses(child);
  std::set<pid_t> members;
  std::size_t known = 0;
  do {
    known = members.size();
    for (const Process& process : processes) {
      if (process.isMarked || members.contains(process.parent)) members.insert(process.pid);
    }
  } while (members.size() != known);
  return members;
}

void SignalAll(const std::set<pid_t>& processes, int signal) {
  for (const pid_t process : processes) kill(process, signal);
}

}  // namespace

void EndProcessTree(const ChildProcess& child) {
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  const auto isTime = [&] { return std::chrono::steady_clock::now() < deadline; };
  // Stopped first: one that is ended while it starts another leaves an orphan that nothing points to.
  std::set<pid_t> stopped;
  for (std::set<pid_t> found = Members(child); found != stopped && isTime(); found = Members(child)) {
    SignalAll(found, SIGSTOP);
    stopped = std::move(found);
  }
  if (!IsReaped(child)) kill(-child.pid, SIGKILL);  // also where there is no /proc to find members in
  SignalAll(stopped, SIGKILL);
  for (std::set<pid_t> left = Members(child); !left.empty() && isTime(); left = Members(child)) {
    SignalAll(left, SIGKILL);
    std::this_thread::sleep_for(milliseconds(2));
  }
}

}  // namespace NKVRHXA20
