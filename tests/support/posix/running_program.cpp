#include "tests/support/running_program.h"

#include <chrono>
#include <csignal>
#include <cstring>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

std::intptr_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const std::filesystem::path& out, const std::filesystem::path& err, Console) {
  std::vector<std::string> texts = {program.string()};
  texts.insert(texts.end(), arguments.begin(), arguments.end());
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);

  constexpr int kFlags = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, out.c_str(), kFlags, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), kFlags, 0600);
  pid_t process = 0;
  const int error = posix_spawn(&process, program.c_str(), &actions, nullptr, pointers.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::runtime_error(program.string() + ": " + std::strerror(error));
  return process;
}

void AskProcessToEnd(std::intptr_t process, EndRequest request) {
  const int signals[] = {SIGINT, SIGTERM, SIGHUP, SIGKILL};
  kill(static_cast<pid_t>(process), signals[static_cast<std::size_t>(request)]);
}

int WaitForProcess(std::intptr_t process) {
  const auto giveUp = std::chrono::steady_clock::now() + std::chrono::minutes(10);
  int status = 0;
  while (waitpid(static_cast<pid_t>(process), &status, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() >= giveUp) AskProcessToEnd(process, EndRequest::kKill);
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 256 + WTERMSIG(status);
}
