#include "tests/support/raid_log_setting.h"

#include <stdexcept>

#include <windows.h>

namespace {

constexpr const char* kKey = "SOFTWARE\\Wow6432Node\\Adaptec\\RAIDController";

}  // namespace

RaidLogSetting::RaidLogSetting(const std::optional<std::string>& folder) {
  RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey);
  if (!folder) return;
  const LSTATUS status = RegSetKeyValueA(HKEY_LOCAL_MACHINE, kKey, "LogDir", REG_SZ, folder->c_str(),
                                         static_cast<DWORD>(folder->size() + 1));
  if (status != ERROR_SUCCESS) throw std::runtime_error("the registry value LogDir cannot be set");
}

RaidLogSetting::~RaidLogSetting() { RegDeleteKeyA(HKEY_LOCAL_MACHINE, kKey); }
