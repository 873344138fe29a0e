#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

// How a program ended and what it wrote.
struct ProgramResult {
  int exitStatus = -1;
  std::string out;
  std::string err;
};

// How a program is made to end.
enum class EndRequest { kInterrupt, kTerminate, kHangUp, kKill };

// A program that runs beside the test. What it writes goes to files, so that it never waits for a reader.
class RunningProgram {
 public:
  RunningProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments);
  // Waits, if nobody has.
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  // What it has written to standard error until now.
  std::string ErrorSoFar() const;
  // Whether standard error holds the text within ten seconds.
  bool SaysOnStandardError(const std::string& text) const;
  void AskToEnd(EndRequest request) const;
  ProgramResult Wait();

 private:
  TemporaryFolder folder_;
  std::intptr_t process_;
  bool isRunning_ = true;
};

// The system's part. Throws std::runtime_error when the program cannot be started.
std::intptr_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const std::filesystem::path& out, const std::filesystem::path& err);
// Throws std::runtime_error where the system has no such request.
void AskProcessToEnd(std::intptr_t process, EndRequest request);
// The exit status; 256 and more where it was ended by force.
int WaitForProcess(std::intptr_t process);
