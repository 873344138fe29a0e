#include "host/hxahost/views/tables/unread_view.h"

#include <string>
#include <vector>

#include <fmt/core.h>

#include "host/hxahost/result/unread_lines.h"
#include "host/hxahost/text/display_width.h"
#include "host/hxahost/text/escaping.h"

namespace hxahost {

namespace {

std::size_t CountUnread(const std::vector<UnreadText>& texts) {
  std::size_t count = 0;
  for (const UnreadText& text : texts) count += text.unread.size();
  return count;
}

void WriteUnreadText(std::ostream& out, const Layout& layout, const UnreadText& text) {
  out << CutToWidth(fmt::format("  {}: {}", Printable(text.command), text.unread.size()), layout.width) << '\n';
  for (std::size_t index = 0; index < text.unread.size(); ++index) {
    const std::string line = fmt::format("    {}  {}", text.unread[index] + 1, Printable(text.unreadLines[index]));
    out << CutToWidth(line, layout.width) << '\n';
  }
}

}  // namespace

void WriteUnreadLines(std::ostream& out, const Layout& layout, const InstanceList& instances) {
  const std::vector<UnreadText> texts = FindUnreadLines(instances);
  out << "\nLines of the tools' texts that nothing above shows: " << CountUnread(texts) << '\n';
  for (const UnreadText& text : texts) WriteUnreadText(out, layout, text);
}

}  // namespace hxahost
