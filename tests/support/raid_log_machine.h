#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/native_path.h"
#include "tests/support/raid_log_setting.h"
#include "tests/support/scripted_services.h"
#include "tests/support/temporary_folder.h"

// A machine on which the RAID manager is installed, with a log or without one.
class RaidLogMachine {
 public:
  explicit RaidLogMachine(ScriptedServices& services, const std::optional<std::string>& log = std::nullopt) {
    if (!log) return;
    folder_.Write("KVR/Zentraxis Manager/RaidEvtA.log", *log);
    services.files[NativePath(LogPath())] = *log;
  }

  // With a backslash at the end, as installers write it.
  std::string Folder() const { return folder_.Path().string() + "\\"; }
  std::string LogFolder() const { return Folder() + "KVR\\Zentraxis Manager\\"; }
  std::string LogPath() const { return LogFolder() + "RaidEvtA.log"; }

 private:
  TemporaryFolder folder_;
  RaidLogSetting setting_{Folder()};
};
