#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What the program asks of the system; posix/ and windows/ answer.
namespace hxahost {

// The arguments behind the program's name, in UTF-8.
std::vector<std::string> ProgramArguments(int count, char** arguments);

// The running program, and its folder.
std::filesystem::path ProgramFile();
std::filesystem::path ProgramFolder();

unsigned long ProcessId();

bool StandardErrorIsTerminal();
bool StandardOutputIsTerminal();

// What the terminal behind a stream can show. Asked only where there is one.
enum class TerminalStream { kOutput, kError };
std::optional<std::size_t> TerminalWidth(TerminalStream stream);
bool TerminalShowsUtf8();
bool TerminalTakesColours();  // of standard output

// Sets a variable of the environment for this process, and what it loads; nothing: unsets it.
void PutVariable(const char* name, const std::optional<std::string>& bytes);
void PutVariable(const char* name, const std::filesystem::path& path);

// A file that others of this process can open to read it. It is gone with this, and with the process at the latest,
// however that ends.
class PrivateFile {
 public:
  // Throws ProgramError where it cannot be made.
  explicit PrivateFile(std::string_view bytes);
  ~PrivateFile();
  PrivateFile(const PrivateFile&) = delete;
  PrivateFile& operator=(const PrivateFile&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::intptr_t handle_ = -1;  // of the system
  std::filesystem::path path_;
};

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
