#include "fuzz/support/log_folder.h"

#include <cstdlib>

#include "tests/support/temporary_folder.h"

namespace {

const TemporaryFolder& Folder() {
  static const TemporaryFolder folder;
  return folder;
}

// Systems of version 6 and later keep the log in a sub-folder. A path that does not match the system finds no log; both
// cases are tried.
constexpr const char* kSubFolder = "KVR/Zentraxis Manager/";
constexpr const char* kFileName = "RaidEvtA.log";

}  // namespace

void SetRaidManagerLog(const std::string& systemVersion, std::string_view text) {
  setenv("ZENX_RAID_LOG_DIR", (Folder().Path().string() + "\\").c_str(), 1);
  setenv("ZENX_OS_VERSION", systemVersion.c_str(), 1);
  if (systemVersion.empty()) unsetenv("ZENX_OS_VERSION");
  const bool hasSubFolder = std::strtol(systemVersion.c_str(), nullptr, 10) >= 6;
  Folder().Write(std::string(hasSubFolder ? kSubFolder : "") + kFileName, text);
}
