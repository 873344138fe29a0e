#include "tests/support/scripted_services.h"

#include <filesystem>

#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

ScriptedServices::ScriptedServices() {
  HostServices services;
  services.spawn = [this](const std::string& path, const std::vector<std::string>& arguments, int) {
    std::string key = std::filesystem::path(path).stem().string();
    for (const std::string& argument : arguments) key += " " + argument;
    runs.push_back(key);
    const auto answer = answers.find(key);
    if (answer == answers.end()) throw THXAException(path + " is not here");
    return answer->second;
  };
  services.capture = [this](const std::string& path) {
    const auto file = files.find(path);
    if (file == files.end()) throw THXAException(path + " cannot be read");
    return file->second;
  };
  services.machineName = [this] { return machineName; };
  services.localTime = [this] { return localTime; };
  services.log = [this](int level, const std::string& message) { log.push_back({level, message}); };
  SetServices(std::move(services));
}

ScriptedServices::~ScriptedServices() { SetServices(RealServices()); }

std::vector<std::string> ScriptedServices::LogTexts() const {
  std::vector<std::string> texts;
  for (const LogEntry& entry : log) texts.push_back(entry.text);
  return texts;
}
