#pragma once

namespace hxahost {

// While it exists, standard output passes bytes on unchanged and a console shows UTF-8. It is constructed before any
// file is opened: no file gets the place of a stream that the parent closed, and writing to that stream fails.
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
