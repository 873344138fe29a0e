#include "tests/support/running_program.h"

#include <chrono>
#include <thread>

#include "tests/support/file_text.h"

RunningProgram::RunningProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                               Console console)
    : process_(StartProcess(program, arguments, folder_.Path() / "out", folder_.Path() / "err", console)) {}

RunningProgram::~RunningProgram() {
  if (isRunning_) WaitForProcess(process_);
}

std::string RunningProgram::ErrorSoFar() const { return FileText(folder_.Path() / "err"); }

bool RunningProgram::SaysOnStandardError(const std::string& text) const {
  for (int attempt = 0; attempt < 200; ++attempt) {
    if (ErrorSoFar().find(text) != std::string::npos) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  }
  return false;
}

void RunningProgram::AskToEnd(EndRequest request) const { AskProcessToEnd(process_, request); }

ProgramResult RunningProgram::Wait() {
  isRunning_ = false;
  const int exitStatus = WaitForProcess(process_);
  return {exitStatus, FileText(folder_.Path() / "out"), ErrorSoFar()};
}
