#include "host/hxahost/terminal/ascii_output.h"

#include "host/hxahost/text/display_width.h"

namespace hxahost {

namespace {

constexpr std::string_view kEllipsis = "\u2026";

// The number of bytes up to the beginning of the next character.
std::size_t CharacterLength(std::string_view utf8) {
  std::size_t length = 1;
  while (length < utf8.size() && (static_cast<unsigned char>(utf8[length]) & 0xc0U) == 0x80U) ++length;
  return length;
}

bool IsAscii(char character) { return static_cast<unsigned char>(character) < 0x80U; }

}  // namespace

std::string ToAscii(std::string_view utf8) {
  std::string ascii;
  while (!utf8.empty()) {
    const std::string_view character = utf8.substr(0, IsAscii(utf8[0]) ? 1 : CharacterLength(utf8));
    if (IsAscii(character[0])) {
      ascii += character;
    } else {
      ascii += character == kEllipsis ? "~" : std::string(DisplayWidth(character), '?');
    }
    utf8.remove_prefix(character.size());
  }
  return ascii;
}

TAsciiBuffer::int_type TAsciiBuffer::overflow(int_type character) {
  if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
  line_ += traits_type::to_char_type(character);
  if (line_.back() == '\n') HandOn();
  return out_ ? character : traits_type::eof();
}

int TAsciiBuffer::sync() {
  HandOn();
  out_.flush();
  return out_ ? 0 : -1;
}

void TAsciiBuffer::HandOn() {
  out_ << ToAscii(line_);
  line_.clear();
}

}  // namespace hxahost
