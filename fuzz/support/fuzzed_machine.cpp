#include "fuzz/support/fuzzed_machine.h"

#include <filesystem>

#include "host/hxacore/host_services.h"
#include "plugin/host_interface/exception.h"

using namespace NKVRHXA20;

FuzzedMachine::FuzzedMachine(const Sections& input, std::size_t firstText, std::vector<Utility> utilities)
    : input_(input), firstText_(firstText), utilities_(std::move(utilities)) {
  HostServices services = RealServices();
  services.spawn = [this](const std::string& path, const std::vector<std::string>& arguments, int) {
    return Answer(path, arguments);
  };
  services.machineName = [] { return std::string("MACHINE"); };
  services.localTime = [] { return TCIMDateTime(2026, 3, 5, 12, 30, 15, 250000, 60); };
  services.log = [this](int level, const std::string& message) { log_.emplace_back(level, message); };
  SetServices(std::move(services));
}

FuzzedMachine::~FuzzedMachine() { SetServices(RealServices()); }

std::size_t FuzzedMachine::MostRuns() const {
  std::size_t runs = 0;
  for (const Utility& utility : utilities_) runs += utility.mostRuns;
  return runs;
}

std::string FuzzedMachine::Answer(const std::string& path, const std::vector<std::string>& arguments) {
  ++runs_;
  const std::string name = std::filesystem::path(path).stem().string();
  std::size_t first = firstText_;
  for (const Utility& utility : utilities_) {
    if (utility.name == name) {
      const auto text = input_.At(first + AnswerPlace(utility, arguments));
      if (!text) throw THXAException(path + " is not here");
      if (text->starts_with(kCannotRun)) throw THXAException(text->substr(1));
      return *text;
    }
    first += AnswerCount(utility);
  }
  throw THXAException(path + " is not here");
}
