#include "host/hxahost/terminal/layout.h"

namespace hxahost {

namespace {

int WidthSlot() {
  static const int slot = std::ios_base::xalloc();
  return slot;
}

int ColoursSlot() {
  static const int slot = std::ios_base::xalloc();
  return slot;
}

}  // namespace

void SetPage(std::ostream& out, const Page& page) {
  out.iword(WidthSlot()) = static_cast<long>(page.width);
  out.iword(ColoursSlot()) = page.hasColours ? 1 : 0;
}

Page PageOf(std::ostream& out) {
  Page page;
  if (const long width = out.iword(WidthSlot()); width > 0) page.width = static_cast<std::size_t>(width);
  page.hasColours = out.iword(ColoursSlot()) != 0;
  return page;
}

}  // namespace hxahost
