#include "host/hxahost/terminal/terminal_layout.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>

#include "host/hxahost/system/terminal.h"

namespace hxahost {

namespace {

bool GoesToTerminal(const LayoutWishes& wishes) { return !wishes.isFile && StandardOutputIsTerminal(); }

std::string_view Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

// COLUMNS, set by a person, has priority over the terminal's width.
std::optional<std::size_t> ColumnsVariable() {
  const std::string_view text = Environment("COLUMNS");
  std::size_t columns = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), columns);
  if (error != std::errc() || stop != text.data() + text.size() || columns == 0) return std::nullopt;
  return columns;
}

std::size_t WidthOf(TerminalStream stream) {
  const auto columns = ColumnsVariable();
  const std::size_t width = columns ? *columns : TerminalWidth(stream).value_or(Layout().width);
  return std::clamp(width, kNarrowestLayout, kWidestLayout);
}

// NO_COLOR, set to any value, applies to every program; the option applies to this run and has priority.
bool HasColours(const LayoutWishes& wishes) {
  if (wishes.color != "auto") return wishes.color == "always";
  return Environment("NO_COLOR").empty() && GoesToTerminal(wishes) && TerminalTakesColours();
}

}  // namespace

Layout LayoutFor(const LayoutWishes& wishes) {
  Layout layout;
  if (wishes.width) {
    layout.width = *wishes.width;
  } else if (GoesToTerminal(wishes)) {
    layout.width = WidthOf(TerminalStream::kOutput);
  }
  layout.hasColours = HasColours(wishes);
  return layout;
}

bool IsAsciiOnly(const LayoutWishes& wishes) {
  return wishes.isAscii || (GoesToTerminal(wishes) && !TerminalShowsUtf8());
}

std::size_t ProgressWidth() { return WidthOf(TerminalStream::kError); }

}  // namespace hxahost
