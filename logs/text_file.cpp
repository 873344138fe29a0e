#include "logs/text_file.h"

#include <algorithm>
#include <string_view>

#include "platform/native_path.h"

namespace {

constexpr std::size_t kBufferSize = std::size_t{64} << 10U;
constexpr int kNowhere = -1;

}  // namespace

// Opened as bytes: where systems have a text mode, each has its own.
TextFile::TextFile(const std::string& path) : file_(OpenNativeFile(path)), buffer_(kBufferSize) {}

const std::string& TextFile::ReadLine(std::size_t limit) {
  line_.clear();
  while (IsOpen() && line_.size() < limit && !line_.ends_with('\n')) {
    if (Peek() == kNowhere) {
      hasMetEnd_ = true;
      break;
    }
    TakePiece(limit - line_.size());
  }
  return line_;
}

// Takes what the buffer holds of the line, at most so many characters.
void TextFile::TakePiece(std::size_t room) {
  const std::string_view held(buffer_.data() + position_, filled_ - position_);
  // A carriage return goes with the line feed behind it, which may stand just behind the room, or behind the buffer.
  const std::size_t size = std::min({held.substr(0, room + 1).find('\n'), room, held.size()});
  line_.append(held.substr(0, size));
  position_ += size;
  if (Peek() != '\n') return;
  if (size > 0 && line_.back() == '\r') {
    line_.back() = '\n';
    ++position_;
  } else if (size < room) {
    line_ += '\n';
    ++position_;
  }
}

// Whether there is a byte to read. A file that cannot be read further ends there.
bool TextFile::Fill() {
  if (position_ < filled_) return true;
  position_ = 0;
  filled_ = std::fread(buffer_.data(), 1, buffer_.size(), file_.get());
  return filled_ > 0;
}

int TextFile::Peek() { return Fill() ? static_cast<unsigned char>(buffer_[position_]) : kNowhere; }
