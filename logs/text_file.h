#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

// A text file, read line by line the same way on every system: carriage return and line feed count as a line feed,
// and every other byte is itself.
class TextFile {
 public:
  // Not open.
  TextFile() = default;

  // Open if the system opens the path for reading.
  explicit TextFile(const std::string& path);

  bool IsOpen() const { return file_ != nullptr; }

  // Whether a read has run into the end. True only after it has: not yet when a read stopped just before.
  bool HasMetEnd() const { return hasMetEnd_; }

  // The next line with its line feed, or as many characters of it as the limit allows; the next call goes on behind
  // them. "" when there is nothing left, and when the file is not open. Lasts until the next call.
  const std::string& ReadLine(std::size_t limit);

 private:
  struct Close {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  bool Fill();
  int Peek();
  void TakePiece(std::size_t room);

  std::unique_ptr<std::FILE, Close> file_;
  std::vector<char> buffer_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
  bool hasMetEnd_ = false;
  std::string line_;
};
