#include "host/hxahost/text/xml_text.h"

#include "host/hxahost/text/utf8.h"

namespace hxahost {

namespace {

// A control character that XML cannot contain in any form, as its picture.
std::string ControlPicture(char32_t code) { return {'\xe2', '\x90', static_cast<char>(0x80U + code)}; }

bool IsLegal(char32_t code) { return code >= 0x20 || code == '\t' || code == '\n' || code == '\r'; }

}  // namespace

std::string LegalXmlText(std::string_view bytes) {
  std::string legal;
  ForEachCharacter(AsUtf8(bytes), [&legal](char32_t code, std::string_view character) {
    if (!IsLegal(code)) {
      legal += ControlPicture(code);
    } else if (code == 0xfffe || code == 0xffff) {
      legal += "\xef\xbf\xbd";
    } else {
      legal += character;
    }
  });
  return legal;
}

}  // namespace hxahost
