#include "bench/tool_speed.h"

#include <algorithm>
#include <ctime>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/machine_text.h"
#include "host/hxacore/host_services.h"
#include "plugin/host_interface/services.h"
#include "tools/arcconf/arcconf_adapter.h"
#include "tools/hrconf/hrconf_adapter.h"
#include "tools/qcmdrun/qcmdrun_adapter.h"

using namespace NKVRHXA20;

namespace {

constexpr int kRuns = 10;
constexpr const char* kNoController = "Found 0 KVR Zentraxis controller(s)\r\nControllers found: 0\r\n";

// "getconfig 1 al" is answered by "getconfig-al"; there is no other controller.
std::string AnswerTo(const std::vector<std::string>& arguments, const Answers& answers) {
  if (arguments.at(1) != "1") return kNoController;
  const auto answer = answers.find(arguments.front() + "-" + arguments.back());
  return answer == answers.end() ? std::string() : answer->second;
}

template <class Adapter, Answers (*kAnswers)(int disks, const std::string& lineEnd)>
Collecting Measure(int disks) {
  const Answers answers = kAnswers(disks, "\r\n");
  HostServices services = RealServices();
  services.spawn = [&answers](const std::string&, const std::vector<std::string>& arguments, int) {
    return AnswerTo(arguments, answers);
  };
  SetServices(services);
  Collecting collecting{.seconds = 1e9};
  for (const auto& [name, text] : answers) collecting.megabytes += static_cast<double>(text.size()) / 1e6;
  for (int run = 0; run < kRuns; ++run) {
    Adapter adapter(TRootObject::GetCoreLogger());
    // Processor time, as other processes may use the machine.
    const std::clock_t begin = std::clock();
    adapter.Collect(0);
    collecting.seconds = std::min(collecting.seconds, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    if (adapter.GetControllers().at(0)->PhysicalDevices.size() != static_cast<std::size_t>(disks)) {
      throw std::runtime_error("a utility's text was not understood");
    }
  }
  SetServices(RealServices());
  return collecting;
}

constexpr MeasuredTool kTools[] = {
    {"qcmdrun", Measure<QcmdrunData, QcmdrunAnswers>},
    {"arcconf", Measure<ArcconfData, ArcconfAnswers>},
    {"hrconf",  Measure<HrconfData,  HrconfAnswers> },
};

}  // namespace

std::span<const MeasuredTool> MeasuredTools() { return kTools; }
