#include "host/hxahost/bundle/text_mask.h"

#include <algorithm>
#include <random>

#include "host/hxahost/bundle/folded_text.h"

namespace hxahost {

namespace {

constexpr char32_t kAsciiEnd = 0x80;

bool IsLower(char32_t code) { return code >= 'a' && code <= 'z'; }
bool IsUpper(char32_t code) { return code >= 'A' && code <= 'Z'; }
bool IsDigit(char32_t code) { return code >= '0' && code <= '9'; }

char32_t Upper(char32_t code) { return IsLower(code) ? code - 'a' + 'A' : code; }

// Without vowels a mask is never a word by which the tools' texts are read ("State", "BIOS", "PFA", "FRU").
constexpr std::u32string_view kLetters = U"bcdghjklmnpqrstvwxz";
constexpr std::u32string_view kEveryLetter = U"abcdefghijklmnopqrstuvwxyz";
constexpr std::u32string_view kDigits = U"0123456789";

// Letters beyond ASCII, by the number of their bytes in UTF-8; those of two bytes are in ISO 8859-1, too.
struct FurtherLetters {
  char32_t end;  // of the codes of so many bytes
  char32_t first;
  std::uint32_t count;
};

constexpr FurtherLetters kFurtherLetters[] = {
    {0x800,    0xe0,    0x17  },
    {0x10000,  0x4e00,  0x5000},
    {0x110000, 0x20000, 0xa000},
};

// The next text with the same kinds of characters, like an odometer; the first after the last.
void GoOn(std::u32string& text) {
  for (auto character = text.rbegin(); character != text.rend(); ++character) {
    const std::u32string_view kind = IsDigit(*character) ? kDigits : kEveryLetter;
    if (!IsDigit(*character) && !IsLower(*character)) continue;
    const std::size_t next = kind.find(*character) + 1;
    *character = kind[next % kind.size()];
    if (next < kind.size()) return;
  }
}

// The mask of a character in as many bytes as it has.
std::string Written(char32_t mask, std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  if (bytes.size() == 1 && first >= kAsciiEnd && mask >= kAsciiEnd) return {static_cast<char>(mask)};
  std::string written;
  AppendUtf8(written, IsUpper(first) ? Upper(mask) : mask);
  if (written.size() > bytes.size()) written.clear();
  return written.append(bytes.size() - written.size(), 'x');
}

}  // namespace

// A mask does not lead to its text, even with knowledge of other masks. The device only provides the seed, as it may be
// slow.
RandomSource SystemRandom() {
  std::random_device device;
  std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
  return [engine = std::mt19937(seed)]() mutable { return static_cast<std::uint32_t>(engine()); };
}

std::u32string TextMask::Draw(std::u32string_view folded) {
  const auto oneOf = [this](std::u32string_view kind) { return kind[random_() % kind.size()]; };
  std::u32string mask;
  for (const char32_t code : folded) {
    if (IsDigit(code) || IsLower(code)) {
      mask += oneOf(IsDigit(code) ? kDigits : kLetters);
    } else if (code < kAsciiEnd) {
      mask += code;
    } else {
      const auto* const letters = std::ranges::upper_bound(kFurtherLetters, code, {}, &FurtherLetters::end);
      mask += letters->first + random_() % letters->count;
    }
  }
  return mask;
}

// Short texts have few masks: if chance finds no free one, the next free one is taken.
std::u32string TextMask::Choose(std::u32string_view folded) {
  constexpr int kDraws = 100;
  std::u32string mask;
  for (int draw = 0; draw < kDraws; ++draw) {
    mask = Draw(folded);
    if (mask != folded && !given_.contains(mask)) return mask;
  }
  const std::u32string first = mask;
  while (given_.contains(mask)) {
    GoOn(mask);
    if (mask == first) break;  // more texts than masks, as for texts whose characters all stay
  }
  return mask;
}

std::string TextMask::Mask(std::string_view text) {
  const std::u32string folded = FoldedCharacters(text);
  auto known = masks_.find(folded);
  if (known == masks_.end()) {
    known = masks_.emplace(folded, Choose(folded)).first;
    given_.insert(known->second);
  }
  std::string mask;
  for (const char32_t code : known->second) {
    const auto [original, length] = FirstCharacter(text);
    const std::string_view bytes = text.substr(0, length);
    mask += code == Folded(original) && code < kAsciiEnd ? std::string(bytes) : Written(code, bytes);
    text.remove_prefix(length);
  }
  return mask;
}

}  // namespace hxahost
