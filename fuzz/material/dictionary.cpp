#include "fuzz/material/dictionary.h"

#include <array>
#include <cstdio>
#include <string_view>

#include "tests/support/file_text.h"

namespace {

namespace fs = std::filesystem;

// Longer words are messages, which no tool prints.
constexpr std::size_t kLongestWord = 60;

char Unescaped(char character) {
  if (character == 'n') return '\n';
  if (character == 't') return '\t';
  if (character == 'r') return '\r';
  return character == '0' ? '\0' : character;
}

// The literal whose opening quote is at the place, which moves past its closing one.
std::string TakeLiteral(std::string_view line, std::size_t& at) {
  std::string literal;
  for (++at; at < line.size() && line[at] != '"'; ++at) {
    literal += line[at] == '\\' && at + 1 < line.size() ? Unescaped(line[++at]) : line[at];
  }
  ++at;
  return literal;
}

void AddLiterals(std::set<std::string>& words, std::string_view source) {
  while (!source.empty()) {
    const std::size_t end = source.find('\n');
    const std::string_view line = source.substr(0, end);
    source.remove_prefix(end == source.npos ? source.size() : end + 1);
    if (line.starts_with("#")) continue;
    const std::string_view code = line.substr(0, line.find("// "));
    for (std::size_t at = code.find('"'); at < code.size(); at = code.find('"', at)) {
      const std::string literal = TakeLiteral(code, at);
      if (!literal.empty() && literal.size() <= kLongestWord) words.insert(literal);
    }
  }
}

}  // namespace

std::set<std::string> LiteralsOf(const std::vector<fs::path>& sources) {
  std::set<std::string> words;
  for (const fs::path& source : sources) {
    if (!fs::is_directory(source)) {
      AddLiterals(words, FileText(source));
      continue;
    }
    for (const auto& file : fs::recursive_directory_iterator(source)) {
      if (file.path().extension() == ".cpp" || file.path().extension() == ".h") AddLiterals(words, FileText(file));
    }
  }
  return words;
}

std::string DictionaryText(const std::set<std::string>& words) {
  std::string text;
  for (const std::string& word : words) {
    text += '"';
    for (const char character : word) {
      if (character >= ' ' && character <= '~' && character != '"' && character != '\\') {
        text += character;
        continue;
      }
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\x%02X",
                    static_cast<unsigned>(static_cast<unsigned char>(character)));
      text += escape.data();
    }
    text += "\"\n";
  }
  return text;
}
