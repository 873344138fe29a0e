// What publishing the RAID manager's log costs beside reading the same file line by line and doing nothing, and how it
// grows with the lines. The memory is that of the file, which is captured whole, and of the instances.

#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

#include "bench/scripted_machine.h"
#include "bench/whole_query.h"
#include "plugin/host_interface/services.h"

namespace {

void WriteLog(const std::filesystem::path& path, int lines) {
  std::ofstream file(path, std::ios::binary);
  for (int line = 0; line < lines; ++line) {
    file << "2007/03/" << 10 + line % 20 << " 08:" << 10 + line % 50 << ":09 PST\tINF\tSERVER\tEvent " << line
         << " of controller 3, channel 1, SCSI ID 4.\r\n";
  }
}

double Seconds(const std::function<void()>& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

void ReadLines(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
  }
}

void ReadRecords() {
  CollectRaidMgrData log(NKVRHXA20::TRootObject::GetCoreLogger());
  while (log.ReadNextRecord() != RaidMgrRead::kEnd) {
  }
}

double PeakMiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void Measure(const std::filesystem::path& path, int lines) {
  WriteLog(path, lines);
  const double fileMiB = static_cast<double>(std::filesystem::file_size(path)) / (1 << 20);
  ReadLines(path);  // so that both find the file in the system's cache
  const double bare = Seconds([&] { ReadLines(path); });
  const double records = Seconds(ReadRecords);
  std::size_t events = 0;
  const double published = Seconds(
      [&] { events = WholeQuery().Run([](std::string_view name) { return name == "KVRSG_LogRecord_RAIDMgrEvent"; }); });
  std::printf("%8d lines %7.1f MiB: lines alone %7.1f ms, records %7.1f ms (x %4.1f), published %8.1f ms (x %5.1f), ",
              lines, fileMiB, bare * 1e3, records * 1e3, records / bare, published * 1e3, published / bare);
  std::printf("%zu events, peak %.0f MiB\n", events, PeakMiB());
}

}  // namespace

int main() {
  const auto folder = std::filesystem::temp_directory_path() / ("zenx-bench-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  setenv("ZENX_RAID_LOG_DIR", (folder.string() + "/").c_str(), 1);
  unsetenv("ZENX_OS_VERSION");
  NKVRHXA20::SetServices(ScriptedMachine(ScriptedTool::kArcconf, 0));
  for (const int lines : {125'000, 250'000, 500'000, 1'000'000}) Measure(folder / "RaidEvtA.log", lines);
  std::filesystem::remove_all(folder);
}
