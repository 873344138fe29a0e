#include "logs/text_file.h"

#include <utility>

#include "platform/native_path.h"

TextFile::TextFile(const std::string& nativePath, std::uint64_t largest) {
  OrdinaryFile opened = OpenOrdinaryFile(FileAt(nativePath), "r", largest);
  file_ = std::move(opened.stream);
  if (!opened.isMissing) refusal_ = opened.refusal;
}

TextFile::TextFile(std::shared_ptr<const std::string> recorded) : recorded_(std::move(recorded)) {}

std::string TextFile::ReadLine() {
  std::string line = Gets();
  if (file_ && HaveStreamsTextMode()) return line;
  if (line.ends_with("\r\n")) {
    line.replace(line.size() - 2, 2, "\n");
  } else if (line.size() == kLongestLine && line.ends_with('\r')) {
    const int next = GetNext();
    if (next == '\n') {
      line.back() = '\n';
    } else {
      PutBack(next);
    }
  }
  return line;
}

// What fgets gives.
std::string TextFile::Gets() {
  std::string line;
  if (file_) {
    // A line may have NULs in it. Of those in the buffer the last one is the end that fgets writes.
    line.resize(kLongestLine + 1, ' ');
    if (std::fgets(line.data(), static_cast<int>(line.size()), file_.get()) == nullptr) return {};
    line.resize(line.rfind('\0'));
  }
  while (recorded_ && line.size() < kLongestLine && !line.ends_with('\n')) {
    const int next = GetNext();
    if (next == EOF) break;
    line += static_cast<char>(next);
  }
  return line;
}

int TextFile::GetNext() {
  if (file_) return std::getc(file_.get());
  hasMetEnd_ = next_ == recorded_->size();
  return hasMetEnd_ ? EOF : static_cast<unsigned char>((*recorded_)[next_++]);
}

void TextFile::PutBack(int character) {
  if (file_) {
    std::ungetc(character, file_.get());
  } else if (character != EOF) {
    --next_;
  }
}
