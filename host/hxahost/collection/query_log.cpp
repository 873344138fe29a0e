#include "host/hxahost/collection/query_log.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/output_file.h"
#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// A RAID manager's log may lead to millions of equal entries, one for each invalid line.
constexpr std::size_t kMostInARow = 100;

}  // namespace

QueryLog::QueryLog(const std::filesystem::path& file) : name_(Printable(Utf8FromPath(file))) {
  if (file.empty()) return;
  file_.open(file, std::ios::binary);
  if (!file_) RejectOutput("--log", file, std::generic_category().message(errno));
}

void QueryLog::Add(int level, const std::string& text) {
  const bool isEqual = !entries_.empty() && entries_.back().level == level && entries_.back().text == text;
  inARow_ = isEqual ? inARow_ + 1 : 1;
  if (inARow_ > kMostInARow) {
    ++entries_.back().count;
  } else {
    entries_.push_back({level, text});
  }
  if (file_.is_open()) file_ << level << '\t' << EscapeControls(text) << '\n' << std::flush;
}

std::vector<LoggedEntry> QueryLog::Take() { return std::exchange(entries_, {}); }

void QueryLog::Finish() {
  if (!file_.is_open()) return;
  file_.close();
  if (!file_) {
    throw ProgramError(ExitStatus::kQueryFailed,
                       "--log " + name_ + " could not be written: see whether there is room on the disk.");
  }
}

}  // namespace hxahost
