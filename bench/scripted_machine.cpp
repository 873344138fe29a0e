#include "bench/scripted_machine.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/machine_text.h"

namespace {

using Answers = std::map<std::string, std::string>;  // by program, command, number and option

Answers AnswersOf(ScriptedTool tool, int disks) {
  switch (tool) {
    case ScriptedTool::kQcmdrun:
      return {
          {"zenx//qcmdrun.exe getconfig 1 al",      QcmdrunConfig(disks)      },
          {"zenx//qcmdrun.exe getevent 1 device",   QcmdrunDeviceEvents(disks)},
          {"zenx//qcmdrun.exe getsubstat 1 device", QcmdrunSubStatus(disks)   }
      };
    case ScriptedTool::kArcconf:
      return {
          {"zenx//arcconf.exe getconfig 1 al", ArcconfConfig(disks)}
      };
    case ScriptedTool::kHrconf:
      return {
          {"zenx//hrconf_64.exe getconfig 1 al", HrconfConfig(disks)}
      };
  }
  return {};
}

constexpr const char* kNoController = "Found 0 KVR Zentraxis controller(s)\r\nControllers found: 0\r\n";

}  // namespace

NKVRHXA20::HostServices ScriptedMachine(ScriptedTool tool, int disks, std::size_t* textCollected) {
  NKVRHXA20::HostServices services = NKVRHXA20::RealServices();
  auto answers = std::make_shared<const Answers>(AnswersOf(tool, disks));
  services.spawn = [answers, textCollected](const std::string& path, const std::vector<std::string>& arguments, int) {
    std::string key = path;
    for (const std::string& argument : arguments) key += " " + argument;
    const auto answer = answers->find(key);
    const bool isProbe = arguments.front() == "getconfig";
    std::string text = answer != answers->end() ? answer->second : isProbe ? kNoController : "";
    if (textCollected != nullptr) *textCollected += text.size();
    return text;
  };
  return services;
}
