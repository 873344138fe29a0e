#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#if defined(_WIN32)
#include <fcntl.h>
#include <io.h>
#endif

// Answers like a controller utility from recorded text. Under the name qcmdrun.exe, asked "getconfig 1 al", it prints
// answers/qcmdrun/1/getconfig-al.txt beside itself. A controller number that has no folder is answered with the
// tool's text for it, answers/qcmdrun/other.txt; an option that a controller has no text for, with nothing.
namespace {

std::string ReadText(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The texts are kept with line feeds alone; the utilities end a line in carriage return and line feed.
std::string WithCarriageReturns(const std::string& text) {
  std::string converted;
  for (const char character : text) {
    if (character == '\n') converted += '\r';
    converted += character;
  }
  return converted;
}

}  // namespace

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  const fs::path self(argv[0]);
  const fs::path answers = self.parent_path() / "answers" / self.stem();
  if (argc < 3) {
    std::fprintf(stderr, "Usage: %s COMMAND CONTROLLER [OPTION]\n", self.stem().string().c_str());
    return 1;
  }
  const bool isKnown = fs::is_directory(answers / argv[2]);
  const std::string name = argc > 3 ? std::string(argv[1]) + "-" + argv[3] : argv[1];
  const std::string text = ReadText(isKnown ? answers / argv[2] / (name + ".txt") : answers / "other.txt");
#if defined(_WIN32)
  _setmode(_fileno(stdout), _O_BINARY);
#endif
  const std::string output = WithCarriageReturns(text);
  std::fwrite(output.data(), 1, output.size(), stdout);
  return isKnown ? 0 : 1;
}
