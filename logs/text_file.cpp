#include "logs/text_file.h"

#include "platform/native_path.h"

TextFile::TextFile(const std::string& nativePath) : file_(OpenNativeFile(nativePath)) {}

std::string TextFile::ReadLine() {
  // A line may have NULs in it. Of those in the buffer the last one is the end that fgets writes.
  std::string line(kLongestLine + 1, ' ');
  if (!IsOpen() || std::fgets(line.data(), static_cast<int>(line.size()), file_.get()) == nullptr) return {};
  line.resize(line.rfind('\0'));
  if (HaveStreamsTextMode()) return line;
  if (line.ends_with("\r\n")) {
    line.replace(line.size() - 2, 2, "\n");
  } else if (line.size() == kLongestLine && line.ends_with('\r') && TakeNext('\n')) {
    line.back() = '\n';
  }
  return line;
}

// Whether the next character is the one given, which is read then.
bool TextFile::TakeNext(char character) {
  const int next = std::getc(file_.get());
  if (next == static_cast<unsigned char>(character)) return true;
  std::ungetc(next, file_.get());
  return false;
}
