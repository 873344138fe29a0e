#pragma once

#include <string>
#include <vector>

#include "tests/support/sample_text.h"
#include "tests/support/scripted_services.h"

// The commands of a recorded controller after its first getconfig, in order: "getconfig al", "getstatus device", ...
inline const std::vector<std::pair<std::string, std::string>> kQcmdrunCommands = {
    {"getconfig",  "al"    },
    {"getstatus",  "device"},
    {"getbst",     "device"},
    {"getevent",   "device"},
    {"getevent",   "ddd"   },
    {"getevent",   "soft"  },
    {"getevent",   "hard"  },
    {"getsubstat", "device"},
};

// "qcmdrun getconfig 1 al"
inline std::string QcmdrunRun(const std::string& command, int number, const std::string& option) {
  return "qcmdrun " + command + " " + std::to_string(number) + " " + option;
}

// Has the utility answer as it does on the sample machine, where it knows the controllers 1 and 3.
inline void AnswerAsSampleQcmdrun(ScriptedServices& services) {
  for (int number = 1; number <= 8; ++number) {
    services.answers[QcmdrunRun("getconfig", number, "al")] = SampleAnswer("qcmdrun/other");
  }
  for (const int number : {1, 3}) {
    for (const auto& [command, option] : kQcmdrunCommands) {
      const std::string folder = "qcmdrun/" + std::to_string(number) + "/";
      services.answers[QcmdrunRun(command, number, option)] = SampleAnswer(folder + command + "-" + option);
    }
  }
}
