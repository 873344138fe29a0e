#pragma once

#include "platform/recorded_system.h"

// While it exists, this system answers instead of the real one.
class RecordedSystemSetting {
 public:
  explicit RecordedSystemSetting(const RecordedSystem& system) { AnswerAs(system); }
  ~RecordedSystemSetting() { AnswerAs(std::nullopt); }
  RecordedSystemSetting(const RecordedSystemSetting&) = delete;
  RecordedSystemSetting& operator=(const RecordedSystemSetting&) = delete;
};
