#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/hxahost/result/query_result.h"
#include "tests/support/filled_repository.h"

// The result of a query of a machine without a fault, for tests that break one thing: a legacy controller 1 and a newer
// controller 2, each with a logical drive on two disks and a hot spare, a tape and an enclosure.
class HealthyMachine {
 public:
  struct Device {
    std::string className;
    std::vector<std::pair<std::string, NKVRHXA20::TCIMValue>> properties;
  };

  HealthyMachine();

  // Sets the property in the first device of the class that has it.
  void Set(std::string_view className, std::string_view property, const NKVRHXA20::TCIMValue& value);

  // Sets it in the device with this identifier: its "DeviceID" or "InstanceID".
  void SetOf(std::string_view identifier, std::string_view property, const NKVRHXA20::TCIMValue& value);

  // Removes every device of a class.
  void Remove(std::string_view className);

  hxahost::QueryHeader Header() const;
  hxahost::QueryResult Result() const;

  std::vector<Device> devices;
  hxahost::ToolRunList runs;
  std::vector<hxahost::LoggedEntry> log;
  std::string notRecorded;  // what ended the replay
};

// A run of a utility: "arcconf", {"getconfig", "1", "al"}.
hxahost::ToolRun RunOf(const std::string& tool, const std::vector<std::string>& arguments, hxahost::Outcome outcome,
                       const std::string& failure = "");
