#pragma once

namespace hxahost {

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
