#include "bench/collection_cost.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <functional>
#include <iterator>
#include <string>
#include <vector>

#include "bench/measured.h"
#include "bench/whole_query.h"
#include "host/hxacore/host_services.h"

extern char** environ;

namespace {

using Command = std::vector<std::string>;  // program and arguments

void RunBare(const Command& command) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  std::array<int, 2> output{};
  if (pipe2(output.data(), O_CLOEXEC) != 0) return;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output[1], STDERR_FILENO);
  pid_t child = 0;
  const bool isStarted = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  close(output[1]);
  std::string text;
  std::array<char, 65536> buffer{};
  for (ssize_t size = 0; (size = read(output[0], buffer.data(), buffer.size())) > 0;) {
    text.append(buffer.data(), static_cast<std::size_t>(size));
  }
  close(output[0]);
  if (isStarted) waitpid(child, nullptr, 0);
}

// What this process and the children that have ended have used of the processors.
double BusySeconds() {
  double seconds = 0;
  for (const int who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
    rusage usage{};
    getrusage(who, &usage);
    for (const timeval& part : {usage.ru_utime, usage.ru_stime}) {
      seconds += static_cast<double>(part.tv_sec) + static_cast<double>(part.tv_usec) / 1e6;
    }
  }
  return seconds;
}

struct Spent {
  double wall = 0;
  double busy = 0;
};

Spent SpentOn(const std::function<void()>& work) {
  const double before = BusySeconds();
  const double wall = Measured(work);
  return {wall, BusySeconds() - before};
}

double Median(const std::vector<Spent>& rounds, double Spent::*part) {
  std::vector<double> values;
  std::ranges::transform(rounds, std::back_inserter(values), part);
  std::ranges::sort(values);
  return values[values.size() / 2];
}

}  // namespace

CollectionCost MeasureCollection(const std::string& machine, int rounds) {
  std::filesystem::current_path(machine);
  std::vector<Command> commands;
  NKVRHXA20::HostServices services = NKVRHXA20::RealServices();
  services.spawn = [&, spawn = services.spawn](const std::string& path, const Command& arguments, int limit) {
    commands.push_back({path});
    commands.back().insert(commands.back().end(), arguments.begin(), arguments.end());
    return spawn(path, arguments, limit);
  };
  NKVRHXA20::SetServices(services);

  std::vector<Spent> wholes;
  std::vector<Spent> bares;
  std::vector<Spent> ratios;
  for (int round = 0; round < rounds; ++round) {
    commands.clear();
    const Spent whole = SpentOn([] { WholeQuery().Run(); });
    const Spent bare = SpentOn([&] { std::ranges::for_each(commands, RunBare); });
    wholes.push_back(whole);
    bares.push_back(bare);
    ratios.push_back({whole.wall / bare.wall, whole.busy / bare.busy});
  }
  NKVRHXA20::SetServices(NKVRHXA20::RealServices());
  return {.runs = commands.size(),
          .whole = Median(wholes, &Spent::wall),
          .bare = Median(bares, &Spent::wall),
          .ratio = Median(ratios, &Spent::wall),
          .wholeBusy = Median(wholes, &Spent::busy),
          .bareBusy = Median(bares, &Spent::busy),
          .ratioBusy = Median(ratios, &Spent::busy)};
}
