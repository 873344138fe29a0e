#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <ostream>
#include <string>
#include <thread>

namespace hxahost {

// One line on a terminal that shows the running command and its seconds. The destructor removes it.
class Progress {
 public:
  // The terminal's width in columns.
  explicit Progress(std::ostream& terminal, std::size_t width = 80);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Shows this command from now on. expected: the total number of commands, as far as it is known; 0: unknown.
  void Begin(const std::string& what, std::size_t expected = 0);
  // Nothing runs. The line stays until the next command begins, so that it does not flicker.
  void End();
  // Nothing runs, and the line is removed, because others write to the terminal.
  void Clear();

 private:
  void Run();
  void Draw(const std::string& line);

  std::ostream& terminal_;
  const std::size_t width_;
  std::mutex mutex_;  // guards the members below
  std::condition_variable changed_;
  std::string what_;  // empty: nothing runs
  std::chrono::steady_clock::time_point since_;
  std::size_t begun_ = 0;
  std::size_t drawnWidth_ = 0;
  bool isOver_ = false;
  std::thread clock_;  // last: it uses the other members
};

}  // namespace hxahost
