#include "host/hxahost/text/mof_string.h"

#include <algorithm>
#include <iterator>

#include <fmt/core.h>
#include <boost/locale/encoding_utf.hpp>

#include "host/hxahost/text/escaping.h"
#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

struct MofEscape {
  char32_t code;
  const char* text;
};

constexpr MofEscape kMofEscapes[] = {
    {'"',  "\\\""        },
    {'\\', "\\\\"        },
    {'\b', "\\b"         },
    {'\t', "\\t"         },
    {'\n', "\\n"         },
    {'\f', "\\f"         },
    {'\r', "\\r"         },
    {'\0', "\xe2\x90\x80"},
};

// In bytes; the last character may go past it.
constexpr std::size_t kLongestString = 1000;

// As UTF-16 code units, each with four digits, so that a digit after them is not read as part of them.
std::string ByCodeUnits(char32_t code) {
  std::string text;
  for (const char16_t unit : boost::locale::conv::utf_to_utf<char16_t>(&code, &code + 1)) {
    text += fmt::format("\\x{:04X}", static_cast<unsigned>(unit));
  }
  return text;
}

std::string EscapedForMof(char32_t code, std::string_view character, bool isUnsafe) {
  const auto* const escape = std::ranges::find(kMofEscapes, code, &MofEscape::code);
  if (escape != std::end(kMofEscapes)) return escape->text;
  return isUnsafe ? ByCodeUnits(code) : std::string(character);
}

}  // namespace

std::string MofText(std::string_view bytes, std::string_view indent) {
  std::string text = "\"";
  UnsafeCharacters unsafe;
  std::size_t begin = 0;  // of the current string
  ForEachCharacter(AsUtf8(bytes), [&](char32_t code, std::string_view character) {
    if (text.size() - begin > kLongestString) {
      text.append("\"\n").append(indent);
      begin = text.size();
      text += '"';
    }
    text += EscapedForMof(code, character, unsafe.Has(code));
  });
  return text += '"';
}

}  // namespace hxahost
