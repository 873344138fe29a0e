#include "host/hxahost/bundle/text_mask.h"

#include <algorithm>
#include <memory>
#include <random>

#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

bool IsLower(char character) { return character >= 'a' && character <= 'z'; }
bool IsUpper(char character) { return character >= 'A' && character <= 'Z'; }
bool IsDigit(char character) { return character >= '0' && character <= '9'; }

char Lower(char character) { return IsUpper(character) ? static_cast<char>(character - 'A' + 'a') : character; }
char Upper(char character) { return IsLower(character) ? static_cast<char>(character - 'a' + 'A') : character; }

// Without vowels no mask is a word, and so none that the tools' texts are read by ("State", "BIOS", "PFA", "FRU").
constexpr std::string_view kLetters = "bcdghjklmnpqrstvwxz";
constexpr std::string_view kEveryLetter = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view kDigits = "0123456789";

// The next text with the same kinds of characters, as an odometer goes on; the first after the last.
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

RandomSource SystemRandom() {
  return [device = std::make_shared<std::random_device>()] { return static_cast<std::uint32_t>((*device)()); };
}

std::string FoldCase(std::string_view text) {
  std::string folded(text);
  std::ranges::transform(folded, folded.begin(), Lower);
  return folded;
}

// Characters beyond ASCII become letters beyond ASCII of as many bytes: "e" with an accent in UTF-8, or in ISO 8859-1.
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
      mask += static_cast<char>(0xa0 + random_() % 0x17);  // a middle or last byte that every first byte allows
    } else {
      mask += static_cast<char>(byte < 0xe0 ? 0xc3 : byte < 0xf0 ? 0xe5 : 0xf1);
    }
  }
  return mask;
}

// A short text leaves few masks: where chance finds none that is free, the next free one is taken.
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
    if (mask == first) break;  // more texts than there are masks, as of characters that are all kept
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
  }
  return mask;
}

}  // namespace hxahost
