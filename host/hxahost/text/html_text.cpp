#include "host/hxahost/text/html_text.h"

#include "host/hxahost/text/escaping.h"

namespace hxahost {

std::string HtmlText(std::string_view bytes) {
  std::string html;
  for (const char character : Printable(bytes)) {
    switch (character) {
      case '&': html += "&amp;"; break;
      case '<': html += "&lt;"; break;
      case '>': html += "&gt;"; break;
      case '"': html += "&quot;"; break;
      case '\'': html += "&#39;"; break;
      default: html += character;
    }
  }
  return html;
}

}  // namespace hxahost
