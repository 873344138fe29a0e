#pragma once

#include <cstddef>
#include <ostream>

namespace hxahost {

// What the tables are laid out for.
struct Page {
  std::size_t width = 100;  // fits a mail, and a file that is read anywhere
  bool hasColours = false;
};

constexpr std::size_t kNarrowestPage = 40;
constexpr std::size_t kWidestPage = 1000;

// The page goes with the stream, so that whatever writes to it knows; the default where none was set.
void SetPage(std::ostream& out, const Page& page);
Page PageOf(std::ostream& out);

}  // namespace hxahost
