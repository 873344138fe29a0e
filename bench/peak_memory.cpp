// The memory that collecting and publishing a controller with so many disks takes at its peak, against the text that
// the tools printed. Each case is a process of its own, as a peak never goes down again.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

#include "bench/scripted_machine.h"
#include "bench/whole_query.h"
#include "plugin/host_interface/services.h"

namespace {

double PeakMiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void Measure(const char* name, ScriptedTool tool, int disks) {
  std::size_t text = 0;
  NKVRHXA20::SetServices(ScriptedMachine(tool, disks, &text));
  ZenxCollectData collector(NKVRHXA20::TRootObject::GetCoreLogger());
  collector.Collect(false);
  const double collected = PeakMiB();
  const double textMiB = static_cast<double>(text) / (1 << 20);
  WholeQuery query;
  const std::size_t instances = query.Run();
  std::printf("%-8s %6d disks %8.2f MiB text  collection %8.2f MiB (bound %8.2f)  with %zu instances %8.2f MiB\n", name,
              disks, textMiB, collected, 3 * textMiB + 16, instances, PeakMiB());
}

}  // namespace

int main() {
  for (const int disks : {8, 512, 4096, 32768}) {
    for (const auto& [name, tool] : {
             std::pair{"qcmdrun", ScriptedTool::kQcmdrun},
             std::pair{"arcconf", ScriptedTool::kArcconf},
             std::pair{"hrconf",  ScriptedTool::kHrconf }
    }) {
      std::fflush(stdout);
      if (fork() == 0) {
        Measure(name, tool, disks);
        std::fflush(stdout);
        _exit(0);
      }
      wait(nullptr);
    }
  }
}
