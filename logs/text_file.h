#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "platform/ordinary_file.h"

// A text file that the system opens by a native path, read line by line with the C streams in text mode. Carriage
// return and line feed are one line feed, also on systems whose streams have no text mode.
class TextFile {
 public:
  // Longer lines are read in pieces of so many characters, each a line of its own.
  static constexpr std::size_t kLongestLine = 511;

  // Not open.
  TextFile() = default;

  // Open if the system opens the path for reading and finds an ordinary file of at most so many bytes there.
  explicit TextFile(const std::string& nativePath, std::uint64_t largest = kLargestInput);

  // A recorded file; null if there was none, and then not open.
  explicit TextFile(std::shared_ptr<const std::string> recorded);

  bool IsOpen() const { return file_ || recorded_; }

  // Why a file that is there is not open; "" where there is none, too.
  const std::string& Refusal() const { return refusal_; }

  // Whether a read has run into the end. True only after it has: not yet when a read stopped just before.
  bool HasMetEnd() const { return file_ ? std::feof(file_.get()) != 0 : recorded_ && hasMetEnd_; }

  // The next line with its line feed. "" when there is nothing left, when the file cannot be read further, and when it
  // is not open.
  std::string ReadLine();

 private:
  std::string Gets();
  int GetNext();
  void PutBack(int character);

  UniqueStream file_;
  std::string refusal_;
  std::shared_ptr<const std::string> recorded_;  // read like a file
  std::size_t next_ = 0;                         // the place of the next byte
  bool hasMetEnd_ = false;
};
