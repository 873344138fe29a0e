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

struct Case {
  const char* name;
  ScriptedTool tool;
};
constexpr Case kCases[] = {
    {"qcmdrun", ScriptedTool::kQcmdrun},
    {"arcconf", ScriptedTool::kArcconf},
    {"hrconf",  ScriptedTool::kHrconf },
};

void PrintPeak(const char* what, std::size_t text) {
  const double textMiB = static_cast<double>(text) / (1 << 20);
  std::printf("  %s peak %8.2f MiB (3 x %.2f MiB of text + 16 MiB = %.2f MiB)\n", what, PeakMiB(), textMiB,
              3 * textMiB + 16);
}

void Collect(const Case& tool, int disks) {
  std::size_t text = 0;
  NKVRHXA20::SetServices(ScriptedMachine(tool.tool, disks, &text));
  ZenxCollectData collector(NKVRHXA20::TRootObject::GetCoreLogger());
  collector.Collect(false);
  PrintPeak("collection                 ", text);
}

void CollectAndPublish(const Case& tool, int disks) {
  std::size_t text = 0;
  NKVRHXA20::SetServices(ScriptedMachine(tool.tool, disks, &text));
  WholeQuery().Run();
  PrintPeak("collection and publication ", text);
}

template <class Work>
void InAProcessOfItsOwn(const Work& work) {
  std::fflush(stdout);
  if (fork() == 0) {
    work();
    std::fflush(stdout);
    _exit(0);
  }
  wait(nullptr);
}

}  // namespace

int main() {
  for (const int disks : {8, 512, 4096, 32768}) {
    for (const Case& tool : kCases) {
      std::printf("%s, %d disks\n", tool.name, disks);
      InAProcessOfItsOwn([&] { Collect(tool, disks); });
      InAProcessOfItsOwn([&] { CollectAndPublish(tool, disks); });
    }
  }
}
