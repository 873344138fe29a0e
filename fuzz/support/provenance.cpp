#include "fuzz/support/provenance.h"

#include <algorithm>

#include "fuzz/support/require.h"

void Printed::RequireWords(std::string_view name, std::string_view value, std::span<const std::string_view> ownWords) {
  std::string_view rest = value;
  while (!rest.empty()) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(std::min(word.size() + 1, rest.size()));
    if (known_.contains(word)) continue;
    if (std::ranges::find(ownWords, word) != ownWords.end()) continue;
    const std::size_t printed = text_.find(word);
    if (printed == text_.npos) {
      Require(false, "a value occurs in the output of a tool", std::string(name) + " = " + std::string(value));
    }
    known_.insert(std::string_view(text_).substr(printed, word.size()));
  }
}

void Printed::RequireBytes(std::string_view name, std::string_view value) const {
  for (const char byte : value) {
    if (byte >= ' ' && byte <= '~') continue;
    if (text_.find(byte) != text_.npos) continue;
    Require(false, "a byte occurs in the output of a tool", std::string(name) + " = " + std::string(value));
  }
}
