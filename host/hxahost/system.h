#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// What the program asks of the system; posix/ and windows/ answer.
namespace hxahost {

// The arguments behind the program's name, in UTF-8.
std::vector<std::string> ProgramArguments(int count, char** arguments);

// The folder of the running program.
std::filesystem::path ProgramFolder();

unsigned long ProcessId();

bool StandardErrorIsTerminal();
bool StandardOutputIsTerminal();

// What the terminal behind a stream can show. Asked only where there is one.
enum class TerminalStream { kOutput, kError };
std::optional<std::size_t> TerminalWidth(TerminalStream stream);
bool TerminalShowsUtf8();
bool TerminalTakesColours();  // of standard output

// Loads a library for good. Throws std::runtime_error with the system's reason.
void LoadPluginLibrary(const std::filesystem::path& file);

// While it lives, standard output takes bytes as they are and a console shows UTF-8.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

 private:
  [[maybe_unused]] unsigned consoleBefore_ = 0;  // the code page of a console that has one
};

}  // namespace hxahost
