#pragma once

namespace hxahost {

// While it exists, standard output passes bytes on unchanged and a console shows UTF-8.
class StandardStreams {
 public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

 private:
  [[maybe_unused]] unsigned consoleBefore_ = 0;  // the console's previous code page
};

}  // namespace hxahost
