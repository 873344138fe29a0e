#include "host/hxahost/bundle/text_mask.h"

#include <algorithm>
#include <random>

#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

bool IsLower(char character) { return character >= 'a' && character <= 'z'; }
bool IsUpper(char character) { return character >= 'A' && character <= 'Z'; }
bool IsDigit(char character) { return character >= '0' && character <= '9'; }

char Lower(char character) { return IsUpper(character) ? static_cast<char>(character - 'A' + 'a') : character; }
char Upper(char character) { return IsLower(character) ? static_cast<char>(character - 'a' + 'A') : character; }

// Without vowels a mask is never a word by which the tools' texts are read ("State", "BIOS", "PFA", "FRU").
constexpr std::string_view kLetters = "bcdghjklmnpqrstvwxz";
constexpr std::string_view kEveryLetter = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kDigits = "0123456789";

// The next text with the same kinds of characters, like an odometer; the first after the last.
void GoOn(std::string& text) {
  for (auto character = text.rbegin(); character != text.rend(); ++character) {
    const std::string_view kind = IsDigit(*character) ? kDigits : kEveryLetter;
    if (!IsDigit(*character) && !IsLower(*character)) continue;
    const std::size_t next = kind.find(*character) + 1;
    *character = kind[next % kind.size()];
    if (next < kind.size()) return;
  }
}

}  // namespace

// A mask does not lead to its text, even with knowledge of other masks. The device only provides the seed, as it may be
// slow.
RandomSource SystemRandom() {
  std::random_device device;
  std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
  return [engine = std::mt19937(seed)]() mutable { return static_cast<std::uint32_t>(engine()); };
}

// The number of bytes and their places stay. In UTF-8 an upper case letter of ISO 8859-1 is 0xc3 and 0x80 to 0x9e.
std::string FoldCase(std::string_view text) {
  std::string folded(text);
  const bool isUtf8 = AsUtf8(text) == text;
  bool isSecondByte = false;
  for (char& character : folded) {
    const auto byte = static_cast<unsigned char>(character);
    const unsigned code = isSecondByte ? byte + 0x40U : isUtf8 ? 0 : byte;
    isSecondByte = isUtf8 && byte == 0xc3;
    if (code >= 0xc0 && code <= 0xde && code != 0xd7) {
      character = static_cast<char>(byte + 0x20);
    } else {
      character = character == '\\' ? '/' : Lower(character);
    }
  }
  return folded;
}

// Characters beyond ASCII become letters beyond ASCII of the same length: "e" with an accent in UTF-8 or ISO 8859-1.
std::string TextMask::Draw(std::string_view folded) {
  const bool isUtf8 = AsUtf8(folded) == folded;
  std::string mask;
  for (std::size_t index = 0; index < folded.size(); ++index) {
    const char character = folded[index];
    const auto byte = static_cast<unsigned char>(character);
    const std::string_view kind = IsDigit(character) ? kDigits : kLetters;
    if (IsDigit(character) || IsLower(character)) {
      mask += kind[random_() % kind.size()];
    } else if (byte < 0x80) {
      mask += character;
    } else if (!isUtf8) {
      mask += static_cast<char>(0xe0 + random_() % 0x17);
    } else if (byte < 0xc0) {
      mask += static_cast<char>(0xa0 + random_() % 0x17);  // a middle or last byte that is valid after every first byte
    } else {
      mask += static_cast<char>(byte < 0xe0 ? 0xc3 : byte < 0xf0 ? 0xe5 : 0xf1);
    }
  }
  return mask;
}

// Short texts have few masks: if chance finds no free one, the next free one is taken.
std::string TextMask::Choose(std::string_view folded) {
  constexpr int kDraws = 100;
  std::string mask;
  for (int draw = 0; draw < kDraws; ++draw) {
    mask = Draw(folded);
    if (mask != folded && !given_.contains(mask)) return mask;
  }
  const std::string first = mask;
  while (given_.contains(mask)) {
    GoOn(mask);
    if (mask == first) break;  // more texts than masks, as for texts whose characters all stay
  }
  return mask;
}

std::string TextMask::Mask(std::string_view text) {
  const std::string folded = FoldCase(text);
  auto known = masks_.find(folded);
  if (known == masks_.end()) {
    known = masks_.emplace(folded, Choose(folded)).first;
    given_.insert(known->second);
  }
  std::string mask = known->second;
  for (std::size_t index = 0; index < text.size(); ++index) {
    if (IsUpper(text[index])) mask[index] = Upper(mask[index]);
    if (text[index] == '\\') mask[index] = '\\';
  }
  return mask;
}

}  // namespace hxahost
