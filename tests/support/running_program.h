#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

// The exit status and output of a program.
struct ProgramResult {
  int exitStatus = -1;
  std::string out;
  std::string err;
};

// The ways to end a program.
enum class EndRequest {
  kInterrupt,  // Ctrl-C
  kTerminate,  // on Windows: the user logs off
  kHangUp,     // on Windows: the console is closed
  kKill,
  kBreak,  // Ctrl-Break, only on Windows
};

// Whether the program has a console of its own. On Windows, Ctrl-C reaches all programs of a console.
enum class Console { kNone, kOwn };

// A program that runs beside the test. It writes to files, so that it never waits for a reader.
class RunningProgram {
 public:
  RunningProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                 Console console = Console::kNone);
  // Waits for the program unless Wait was called.
  ~RunningProgram();
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;

  // Its standard error so far.
  std::string ErrorSoFar() const;
  // Whether standard error contains the text within ten seconds.
  bool SaysOnStandardError(const std::string& text) const;
  void AskToEnd(EndRequest request) const;
  ProgramResult Wait();

 private:
  TemporaryFolder folder_;
  std::intptr_t process_;
  bool isRunning_ = true;
};

// The system's part. Throws std::runtime_error if the program cannot be started.
std::intptr_t StartProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                           const std::filesystem::path& out, const std::filesystem::path& err, Console console);
// Throws std::runtime_error if the system has no such request.
void AskProcessToEnd(std::intptr_t process, EndRequest request);
// The exit status; 256 and more if the program was ended by force, which this function does after ten minutes.
int WaitForProcess(std::intptr_t process);
