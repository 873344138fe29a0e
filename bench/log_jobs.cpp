#include "bench/log_jobs.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "bench/idle_host.h"
#include "bench/scripted_machine.h"
#include "bench/whole_query.h"
#include "plugin/host_interface/services.h"

using namespace NKVRHXA20;

namespace {

constexpr const char* kClass = "KVRSG_LogRecord_RAIDMgrEvent";

class LogFolder {
 public:
  explicit LogFolder(int lines)
      : path_(std::filesystem::temp_directory_path() / ("zenx-bench-" + std::to_string(getpid()))) {
    std::filesystem::create_directories(path_);
    setenv("ZENX_RAID_LOG_DIR", (path_.string() + "/").c_str(), 1);
    unsetenv("ZENX_OS_VERSION");
    std::ofstream file(File(), std::ios::binary);
    for (int line = 0; line < lines; ++line) {
      file << "2007/03/" << 10 + line % 20 << " 08:" << 10 + line % 50 << ":09 PST\tINF\tSERVER\tEvent " << line
           << " of controller 3, channel 1, SCSI ID 4.\r\n";
    }
  }
  ~LogFolder() { std::filesystem::remove_all(path_); }
  LogFolder(const LogFolder&) = delete;
  LogFolder& operator=(const LogFolder&) = delete;

  std::filesystem::path File() const { return path_ / "RaidEvtA.log"; }

 private:
  std::filesystem::path path_;
};

// The log is open, as it is when a query begins.
struct OpenLog {
  explicit OpenLog(int lines) : folder(lines) {
    SetServices(ScriptedMachine(ScriptedTool::kArcconf, 0));
    state.collectPending = false;
    state.collector = std::make_unique<ZenxCollectData>(TRootObject::GetCoreLogger());
    state.raidManagerLog = std::make_unique<CollectRaidMgrData>(TRootObject::GetCoreLogger());
  }

  LogFolder folder;
  QueryState state;
};

std::size_t SizeOf(const LogFolder& folder) { return std::filesystem::file_size(folder.File()); }

}  // namespace

Job SplitLog(int lines) {
  const auto folder = std::make_shared<LogFolder>(lines);
  return {SizeOf(*folder), [folder] {
            std::ifstream file(folder->File(), std::ios::binary);
            std::size_t read = 0;
            for (std::string line; std::getline(file, line);) ++read;
            return read;
          }};
}

Job ReadLog(int lines) {
  const auto log = std::make_shared<OpenLog>(lines);
  return {SizeOf(log->folder), [log] {
            std::size_t read = 0;
            while (log->state.raidManagerLog->ReadNextRecord() != RaidMgrRead::kEnd) ++read;
            return read;
          }};
}

Job PublishLogToIdleHost(int lines) {
  const auto log = std::make_shared<OpenLog>(lines);
  return {SizeOf(log->folder), [log] {
            IdleHost host;
            RunQuery(log->state, TRootObject::GetCoreLogger(), host, {host.GetClass(kClass, {})});
            return host.Committed();
          }};
}

Job PublishLog(int lines) {
  const auto log = std::make_shared<OpenLog>(lines);
  const auto repository = TRepository::Make(std::nullopt);
  return {SizeOf(log->folder), [log, repository] {
            RunQuery(log->state, TRootObject::GetCoreLogger(), *repository, {repository->GetClass(kClass, {})});
            return repository->Published().size();
          }};
}
