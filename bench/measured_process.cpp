#include "bench/measured_process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <functional>
#include <stdexcept>
#include <string_view>

extern char** environ;

namespace {

double Seconds(const timeval& time) {
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

Cost Run(const Command& command, bool isChecked, const std::function<void(std::string_view)>& take) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  std::array<int, 2> output{};
  if (pipe2(output.data(), O_CLOEXEC) != 0) throw std::runtime_error("there is no pipe left");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
  const auto begin = std::chrono::steady_clock::now();
  pid_t child = 0;
  const bool isStarted = posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ) == 0;
  posix_spawn_file_actions_destroy(&actions);
  close(output[1]);
  std::array<char, 65536> buffer{};
  for (ssize_t size = 0; (size = read(output[0], buffer.data(), buffer.size())) > 0;) {
    take({buffer.data(), static_cast<std::size_t>(size)});
  }
  close(output[0]);
  int status = 0;
  rusage usage{};
  const bool hasEnded = isStarted && wait4(child, &status, 0, &usage) == child && WIFEXITED(status);
  if (!hasEnded || (isChecked && WEXITSTATUS(status) != 0)) throw std::runtime_error(command[0] + " failed");
  const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - begin;
  return {.wall = wall.count(),
          .busy = Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
          .peakMiB = static_cast<double>(usage.ru_maxrss) / 1024};
}

}  // namespace

Cost CostOf(const Command& command, bool isChecked) {
  return Run(command, isChecked, [](std::string_view) {});
}

std::string OutputOf(const Command& command) {
  std::string output;
  Run(command, true, [&](std::string_view part) { output += part; });
  return output;
}
