#include "fuzz/support/provenance.h"

#include <algorithm>

#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"

void Printed::RequireWords(std::string_view name, std::string_view value, std::span<const std::string_view> ownWords) {
  for (const std::string& word : Split(value, ' ')) {
    if (known_.contains(word)) continue;
    if (std::ranges::find(ownWords, word) == ownWords.end()) {
      const bool isPrinted = text_.find(word) != text_.npos;
      Require(isPrinted, "a value is what a tool printed", std::string(name) + " = " + std::string(value));
    }
    known_.insert(word);
  }
}

void Printed::RequireBytes(std::string_view name, std::string_view value) const {
  for (const char byte : value) {
    if (byte >= ' ' && byte <= '~') continue;
    Require(text_.find(byte) != text_.npos, "a byte is one that a tool printed",
            std::string(name) + " = " + std::string(value));
  }
}
