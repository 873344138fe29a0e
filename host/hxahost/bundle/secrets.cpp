#include "host/hxahost/bundle/secrets.h"

#include <algorithm>
#include <cctype>

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

bool IsDigitCode(char32_t code) { return code >= '0' && code <= '9'; }
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

constexpr char32_t kSharpS = 0xdf;

// A sharp s is two letters in a text of capital letters alone.
std::u32string WithoutSharpS(std::u32string_view folded) {
  std::u32string text;
  for (const char32_t code : folded) text += code == kSharpS ? U"ss" : std::u32string(1, code);
  return text;
}

}  // namespace

Secrets::Where Secrets::WhereCounts(std::u32string_view folded) {
  const bool isNumber = std::ranges::all_of(folded, IsDigitCode);
  if (isNumber) return folded.size() < kShortestNumber ? Where::kInProse : Where::kAsWholeWord;
  const std::string text = Utf8Of(folded);
  if (HasToolWordsAlone(text)) return Where::kInProse;
  return folded.size() < kShortestAnywhere || IsPartOfToolWord(text) ? Where::kAsWholeWord : Where::kAnywhere;
}

void Secrets::Add(std::string_view secret) {
  if (secret.size() < kShortest) return;
  const std::u32string folded = FoldedCharacters(secret);
  AddFolded(folded);
  if (folded.find(kSharpS) != folded.npos) AddFolded(WithoutSharpS(folded));
}

void Secrets::AddFolded(std::u32string_view folded) {
  hasOtherThanAscii_ = hasOtherThanAscii_ || std::ranges::any_of(folded, [](char32_t code) { return code >= 0x80; });
  do {
    const std::u32string_view part = folded.substr(0, kLongest);
    secrets_.push_back({std::u32string(part), WhereCounts(part)});
    folded.remove_prefix(part.size());
  } while (folded.size() >= kShortest);
}

void Secrets::Sort() {
  std::ranges::sort(secrets_, {}, &Secret::folded);
  const auto rest = std::unique(secrets_.begin(), secrets_.end(),
                                [](const Secret& one, const Secret& other) { return one.folded == other.folded; });
  secrets_.erase(rest, secrets_.end());
}

std::size_t Secrets::LengthAt(std::string_view text, std::size_t place, bool isProse) const {
  const std::size_t length = LengthAt(text, place, isProse, Reading::kUtf8);
  return hasOtherThanAscii_ ? std::max(length, LengthAt(text, place, isProse, Reading::kLatin1)) : length;
}

// Secrets with the same beginning are next to each other, the shorter before the longer, so each character leaves fewer
// of them.
std::size_t Secrets::LengthAt(std::string_view text, std::size_t place, bool isProse, Reading reading) const {
  std::size_t longest = 0;
  std::size_t end = place;
  auto first = secrets_.begin();
  auto last = secrets_.end();
  for (std::size_t index = 0; first != last; ++index) {
    if (first->folded.size() == index) {
      const bool counts = first->where == Where::kAnywhere ||
                          ((isProse || first->where == Where::kAsWholeWord) && IsWholeWord(text, place, end - place));
      if (counts) longest = end - place;
      ++first;
    }
    if (end == text.size()) break;
    const auto next = [index](const Secret& secret) { return secret.folded[index]; };
    const Character character = FirstCharacter(text.substr(end), reading);
    const char32_t wanted = Folded(character.code);
    first = std::ranges::lower_bound(first, last, wanted, {}, next);
    last = std::ranges::upper_bound(first, last, wanted, {}, next);
    end += character.length;
  }
  return longest;
}

}  // namespace hxahost
