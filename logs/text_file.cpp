#include "logs/text_file.h"

#include "platform/native_path.h"

namespace {

constexpr std::size_t kBufferSize = std::size_t{64} << 10U;
constexpr int kNone = -1;

}  // namespace

// Opened as bytes: where systems have a text mode, each has its own.
TextFile::TextFile(const std::string& path) : file_(OpenNativeFile(path)), buffer_(kBufferSize) {}

std::string TextFile::ReadLine(std::size_t limit) {
  std::string line;
  while (IsOpen() && line.size() < limit && !line.ends_with('\n')) {
    const int character = TakeCharacter();
    if (character == kNone) break;
    line += static_cast<char>(character);
  }
  return line;
}

// Whether there is a byte to read. A file that cannot be read further ends there.
bool TextFile::Fill() {
  if (position_ < filled_) return true;
  position_ = 0;
  filled_ = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
  return filled_ > 0;
}

int TextFile::Peek() { return Fill() ? static_cast<unsigned char>(buffer_[position_]) : kNone; }

int TextFile::TakeByte() {
  const int byte = Peek();
  if (byte == kNone) {
    hasMetEnd_ = true;
  } else {
    ++position_;
  }
  return byte;
}

int TextFile::TakeCharacter() {
  const int byte = TakeByte();
  return byte == '\r' && Peek() == '\n' ? TakeByte() : byte;
}
