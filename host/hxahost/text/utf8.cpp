#include "host/hxahost/text/utf8.h"

#include <iterator>

#include <boost/locale/utf.hpp>

namespace hxahost {

namespace {

using Utf8 = boost::locale::utf::utf_traits<char>;

bool IsUtf8(std::string_view text) {
  const char* next = text.data();
  const char* const end = next + text.size();
  while (next != end) {
    if (!boost::locale::utf::is_valid_codepoint(Utf8::decode(next, end))) return false;
  }
  return true;
}

std::string FromLatin1(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) AppendUtf8(text, static_cast<unsigned char>(byte));
  return text;
}

}  // namespace

Character NextCharacter(std::string_view utf8) {
  const char* next = utf8.data();
  const char32_t code = Utf8::decode(next, utf8.data() + utf8.size());
  if (!boost::locale::utf::is_valid_codepoint(code)) return {};
  return {code, static_cast<std::size_t>(next - utf8.data())};
}

void AppendUtf8(std::string& text, char32_t code) { Utf8::encode(code, std::back_inserter(text)); }

std::string AsUtf8(std::string_view bytes) { return IsUtf8(bytes) ? std::string(bytes) : FromLatin1(bytes); }

std::filesystem::path PathFromUtf8(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

std::string Utf8FromPath(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace hxahost
