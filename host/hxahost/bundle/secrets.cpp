#include "host/hxahost/bundle/secrets.h"

#include <algorithm>
#include <cctype>

#include "host/hxahost/bundle/text_mask.h"
#include "host/hxahost/bundle/tool_words.h"

namespace hxahost {

namespace {

constexpr std::size_t kShortest = 3;
// Secrets of at least this length are also found inside words.
constexpr std::size_t kShortestAnywhere = 6;
// Shorter numbers occur everywhere.
constexpr std::size_t kShortestNumber = 5;
// Longer secrets are searched in parts, which limits the time of the search at one place.
constexpr std::size_t kLongest = 256;

bool IsDigit(char character) { return std::isdigit(static_cast<unsigned char>(character)) != 0; }
bool IsLetter(char character) { return std::isalpha(static_cast<unsigned char>(character)) != 0; }

bool IsSameWord(char before, char after) {
  return (IsDigit(before) && IsDigit(after)) || (IsLetter(before) && IsLetter(after));
}

bool IsWholeWord(std::string_view text, std::size_t begin, std::size_t length) {
  const std::size_t end = begin + length;
  return !(begin > 0 && IsSameWord(text[begin - 1], text[begin])) &&
         !(end < text.size() && IsSameWord(text[end - 1], text[end]));
}

}  // namespace

Secrets::Where Secrets::WhereCounts(std::string_view folded) {
  const bool isNumber = std::ranges::all_of(folded, IsDigit);
  if (isNumber) return folded.size() < kShortestNumber ? Where::kInProse : Where::kAsWholeWord;
  if (HasToolWordsAlone(folded)) return Where::kInProse;
  return folded.size() < kShortestAnywhere || IsPartOfToolWord(folded) ? Where::kAsWholeWord : Where::kAnywhere;
}

void Secrets::Add(std::string_view secret) {
  for (; secret.size() >= kShortest; secret.remove_prefix(std::min(kLongest, secret.size()))) {
    std::string folded = FoldCase(secret.substr(0, kLongest));
    const Where where = WhereCounts(folded);
    secrets_.push_back({std::move(folded), where});
  }
}

void Secrets::Sort() {
  std::ranges::sort(secrets_, {}, &Secret::folded);
  const auto rest = std::unique(secrets_.begin(), secrets_.end(),
                                [](const Secret& one, const Secret& other) { return one.folded == other.folded; });
  secrets_.erase(rest, secrets_.end());
}

// Secrets with the same beginning are next to each other, the shorter before the longer, so each character leaves fewer
// of them.
std::size_t Secrets::LengthAt(std::string_view text, std::string_view folded, std::size_t place, bool isProse) const {
  std::size_t longest = 0;
  auto first = secrets_.begin();
  auto last = secrets_.end();
  for (std::size_t length = 0; first != last; ++length) {
    if (first->folded.size() == length) {
      const bool counts = first->where == Where::kAnywhere ||
                          ((isProse || first->where == Where::kAsWholeWord) && IsWholeWord(text, place, length));
      if (counts) longest = length;
      ++first;
    }
    if (place + length == folded.size()) break;
    const auto next = [length](const Secret& secret) { return static_cast<unsigned char>(secret.folded[length]); };
    const auto wanted = static_cast<unsigned char>(folded[place + length]);
    first = std::ranges::lower_bound(first, last, wanted, {}, next);
    last = std::ranges::upper_bound(first, last, wanted, {}, next);
  }
  return longest;
}

}  // namespace hxahost
