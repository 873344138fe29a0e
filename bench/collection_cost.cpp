#include "bench/collection_cost.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
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

double Median(std::vector<double> values) {
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

  std::vector<double> whole;
  std::vector<double> bare;
  std::vector<double> ratios;
  for (int round = 0; round < rounds; ++round) {
    commands.clear();
    whole.push_back(Measured([] { WholeQuery().Run(); }));
    bare.push_back(Measured([&] { std::ranges::for_each(commands, RunBare); }));
    ratios.push_back(whole.back() / bare.back());
  }
  NKVRHXA20::SetServices(NKVRHXA20::RealServices());
  return {commands.size(), Median(whole), Median(bare), Median(ratios)};
}
