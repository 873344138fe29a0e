#include "host/hxahost/terminal/wrap.h"

#include "host/hxahost/text/ascii.h"
#include "host/hxahost/text/display_width.h"

namespace hxahost {

std::vector<std::string> WrapWords(std::string_view utf8, std::size_t columns) {
  std::vector<std::string> lines;
  std::size_t width = 0;  // of the last line
  for (std::string_view word : Split(utf8, " ")) {
    std::size_t wordWidth = DisplayWidth(word);
    while (wordWidth > columns) {
      lines.emplace_back(word.substr(0, LengthOfWidth(word, columns)));
      width = columns;
      wordWidth -= DisplayWidth(lines.back());
      word.remove_prefix(lines.back().size());
    }
    if (lines.empty() || width + 1 + wordWidth > columns) {
      lines.emplace_back(word);
      width = wordWidth;
    } else {
      lines.back().append(" ").append(word);
      width += 1 + wordWidth;
    }
  }
  return lines;
}

}  // namespace hxahost
