#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "plugin/host_interface/services.h"

// One line of the log.
struct LogEntry {
  int level = 0;
  std::string text;

  friend bool operator==(const LogEntry&, const LogEntry&) = default;
  friend std::ostream& operator<<(std::ostream& out, const LogEntry& entry) {
    return out << entry.level << ": " << entry.text;
  }
};

// A log that keeps its entries.
class RecordingLog final : public NKVRHXA20::ILogger {
 public:
  void Log(int level, const std::string& message) override { entries.push_back({level, message}); }

  std::vector<LogEntry> entries;
};
