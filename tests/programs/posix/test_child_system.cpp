#include "tests/programs/test_child_system.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

std::vector<std::string> ExactArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

void WriteBytesAsTheyAre() {}

void CloseStandardOutput() {
  close(STDOUT_FILENO);
  close(STDERR_FILENO);
}

void IgnoreTermination() {
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGQUIT}) std::signal(signal, SIG_IGN);
}

unsigned long OwnProcessId() { return static_cast<unsigned long>(getpid()); }

// A signal that writes no core file.
void Crash() {
  kill(getpid(), SIGKILL);
  _exit(2);
}

void LeaveBehind(Ties ties, Rest rest, const std::string& file) {
  if (fork() != 0) return;
  if (ties != Ties::kAll) setsid();
  if (ties == Ties::kNothing) {
    if (fork() != 0) _exit(0);
    const int null = open("/dev/null", O_RDWR);
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(null, standard);
  }
  StayBehind(rest, file);
  _exit(0);
}

std::vector<std::string> Environment() {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable; ++variable) variables.emplace_back(*variable);
  return variables;
}
