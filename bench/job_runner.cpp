#include "bench/job_runner.h"

#include <sys/resource.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <stdexcept>

#include "bench/jobs.h"
#include "bench/measured.h"

namespace {

constexpr int kRuns = 3;

double PeakMiB() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

// What the command prints on both outputs.
std::string OutputOf(const std::string& command) {
  std::FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("cannot start " + command);
  std::string output;
  std::array<char, 4096> buffer{};
  for (std::size_t size = 0; (size = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    output.append(buffer.data(), size);
  }
  if (pclose(pipe) != 0) throw std::runtime_error(command + " failed: " + output);
  return output;
}

std::string CommandOf(const std::string& job, int size) {
  return "'" + std::filesystem::canonical("/proc/self/exe").string() + "' " + job + " " + std::to_string(size);
}

Cost RunOnce(const std::string& job, int size) {
  Cost cost;
  const std::string output = OutputOf(CommandOf(job, size));
  if (std::sscanf(output.c_str(), "%zu %zu %lf %lf", &cost.bytes, &cost.things, &cost.seconds, &cost.peakMiB) != 4) {
    throw std::runtime_error(job + " said: " + output);
  }
  return cost;
}

// "==4711== Collected : 1234567"
double InstructionsOf(const std::string& job, int size) {
  // The C library copies long texts by one instruction, which valgrind counts anew for every byte: by those that move
  // 32 bytes, as here, they cost about as much as they take.
  constexpr const char* kValgrind =
      "GLIBC_TUNABLES=glibc.cpu.x86_rep_movsb_threshold=1073741824 "
      "valgrind --tool=callgrind --toggle-collect='Measured(*' --callgrind-out-file=/dev/null ";
  const std::string output = OutputOf(kValgrind + CommandOf(job, size));
  const std::size_t collected = output.find("Collected :");
  double instructions = 0;
  // None at all means that the function whose calls are counted was put into its caller.
  if (collected == output.npos || std::sscanf(output.c_str() + collected, "Collected : %lf", &instructions) != 1 ||
      instructions == 0) {
    throw std::runtime_error("valgrind did not count " + job + ": " + output);
  }
  return instructions;
}

}  // namespace

Cost Timed(const std::string& job, int size) {
  Cost best = RunOnce(job, size);
  for (int run = 1; run < kRuns; ++run) {
    const Cost cost = RunOnce(job, size);
    best.seconds = std::min(best.seconds, cost.seconds);
    best.peakMiB = std::max(best.peakMiB, cost.peakMiB);
  }
  return best;
}

Cost Counted(const std::string& job, int size) {
  Cost cost = Timed(job, size);
  cost.instructions = InstructionsOf(job, size);
  return cost;
}

int DoJob(const std::string& job, int size) {
  const auto found = std::ranges::find(Jobs(), job, &NamedJob::name);
  if (found == Jobs().end()) {
    std::fprintf(stderr, "There is no job \"%s\".\n", job.c_str());
    return 2;
  }
  const Job made = found->make(size);
  std::size_t things = 0;
  // The processor's time, not the wall's: others may be at work on the machine.
  const std::clock_t begin = std::clock();
  Measured([&] { things = made.work(); });
  const double seconds = static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
  std::printf("%zu %zu %.9f %.2f\n", made.bytes, things, seconds, PeakMiB());
  return 0;
}
