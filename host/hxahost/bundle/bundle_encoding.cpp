#include "host/hxahost/bundle/bundle_encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <utility>

#include <fmt/core.h>
#include <boost/crc.hpp>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

struct ByteEscape {
  char letter;
  char byte;
};

constexpr ByteEscape kByteEscapes[] = {
    {'\\', '\\'},
    {'r',  '\r'},
    {'t',  '\t'},
    {'n',  '\n'},
    {'"',  '"' },
};

// The escape of a byte. Quotation marks need one only in quoted texts.
std::string EscapedByte(char byte) {
  const auto* const escape = std::ranges::find(kByteEscapes, byte, &ByteEscape::byte);
  if (escape != std::end(kByteEscapes)) return {'\\', escape->letter};
  return fmt::format("\\x{:02x}", static_cast<unsigned char>(byte));
}

// Bundles of older programs contain some invisible characters, and long runs of marks, unescaped.
enum class Writer { kThisProgram, kOlderProgram };

std::string EscapeAll(std::string_view bytes, bool isQuoted, Writer writer = Writer::kThisProgram) {
  std::string text;
  UnsafeCharacters unsafe;
  ForEachCharacter(bytes, [&](char32_t code, std::string_view character) {
    const bool isUnsafe = unsafe.Has(code);
    const bool isMark = code == '\\' || (isQuoted && code == '"');
    const bool isKept = writer == Writer::kThisProgram ? !isUnsafe : PrintableLength(character) > 0;
    if (isKept && !isMark) {
      text += character;
    } else {
      for (const char byte : character) text += EscapedByte(byte);
    }
  });
  return text;
}

// Removes an escape, without its backslash, from the beginning of the text.
std::optional<char> TakeEscape(std::string_view& text) {
  if (text.empty()) return std::nullopt;
  const auto* const escape = std::ranges::find(kByteEscapes, text.front(), &ByteEscape::letter);
  if (escape != std::end(kByteEscapes)) {
    text.remove_prefix(1);
    return escape->byte;
  }
  constexpr std::size_t kLength = 3;  // x0d
  unsigned byte = 0;
  if (text.size() < kLength || text.front() != 'x') return std::nullopt;
  const auto [end, error] = std::from_chars(text.data() + 1, text.data() + kLength, byte, 16);
  if (error != std::errc() || end != text.data() + kLength) return std::nullopt;
  text.remove_prefix(kLength);
  return static_cast<char>(byte);
}

// The bytes of a text, if a program writes them as this text: a bundle of this program is written again exactly as it
// was read.
std::optional<std::string> UnescapeAll(std::string_view text, bool isQuoted) {
  std::string bytes;
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t length = rest.front() == '\\' ? 0 : PrintableLength(rest);
    if (length > 0) {
      bytes += rest.substr(0, length);
      rest.remove_prefix(length);
      continue;
    }
    if (rest.front() != '\\') return std::nullopt;
    rest.remove_prefix(1);
    const auto byte = TakeEscape(rest);
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  const bool isWritten =
      EscapeAll(bytes, isQuoted) == text || EscapeAll(bytes, isQuoted, Writer::kOlderProgram) == text;
  return isWritten ? std::optional<std::string>(std::move(bytes)) : std::nullopt;
}

}  // namespace

std::string EscapeBytes(std::string_view bytes) { return EscapeAll(bytes, false); }

std::optional<std::string> UnescapeBytes(std::string_view text) { return UnescapeAll(text, false); }

std::string Quote(std::string_view bytes) { return '"' + EscapeAll(bytes, true) + '"'; }

std::optional<std::string> Unquote(std::string_view text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return std::nullopt;
  return UnescapeAll(text.substr(1, text.size() - 2), true);
}

std::uint32_t Crc32(std::string_view bytes) {
  boost::crc_32_type crc;
  crc.process_bytes(bytes.data(), bytes.size());
  return crc.checksum();
}

std::string HexText(std::uint32_t number) { return fmt::format("{:08x}", number); }

std::string DecimalText(double number) {
  std::array<char, 32> text{};
  const auto result = std::to_chars(text.data(), text.data() + text.size(), number);
  return {text.data(), result.ptr};
}

}  // namespace hxahost
