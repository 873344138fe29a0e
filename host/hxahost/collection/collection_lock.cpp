#include "host/hxahost/collection/collection_lock.h"

#include <cstdlib>
#include <ctime>
#include <string>
#include <thread>

#include <fmt/chrono.h>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

// "2026-11-20 09:30:00 +01:00"
std::string LocalTimeText(std::time_t time) {
  namespace chrono = std::chrono;
  const std::tm local = fmt::localtime(time);
  const auto day = chrono::year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday;
  const auto read = chrono::sys_days(day) + chrono::hours(local.tm_hour) + chrono::minutes(local.tm_min) +
                    chrono::seconds(local.tm_sec);
  // Some systems have names of zones where others have offsets.
  const auto offset = chrono::floor<chrono::minutes>(read - chrono::sys_seconds(chrono::seconds(time))).count();
  return fmt::format("{:%Y-%m-%d %H:%M:%S} {}{:02}:{:02}", local, offset < 0 ? '-' : '+', std::abs(offset) / 60,
                     std::abs(offset) % 60);
}

// "another program collects from this folder zenx (hxahost, process 417, since 2026-11-20 09:30:00 +01:00)"
std::string BusyText(const FolderLock& lock) {
  std::string text = "another program collects from this folder zenx";
  if (const auto holder = lock.Holder()) {
    text += " (";
    if (!holder->program.empty()) text += Printable(holder->program) + ", ";
    text += fmt::format("process {}", holder->process);
    if (holder->since != 0) text += ", since " + LocalTimeText(holder->since);
    text += ")";
  }
  return text;
}

}  // namespace

CollectionLock::CollectionLock(const std::filesystem::path& folder, std::chrono::seconds longestWait, std::ostream& err)
    : lock_(folder) {
  constexpr std::chrono::milliseconds kPause{100};
  const auto giveUp = std::chrono::steady_clock::now() + longestWait;
  if (lock_.Take()) return;
  if (longestWait.count() > 0) {
    err << fmt::format("hxahost: {}: waiting at most {} s.", BusyText(lock_), longestWait.count()) << std::endl;
  }
  while (std::chrono::steady_clock::now() < giveUp) {
    std::this_thread::sleep_for(kPause);
    if (lock_.Take()) return;
  }
  throw ProgramError(ExitStatus::kBusy, "Nothing was collected: " + BusyText(lock_) +
                                            ". Try again later, or wait longer with --wait SECONDS.");
}

}  // namespace hxahost
