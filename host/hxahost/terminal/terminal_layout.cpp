#include "host/hxahost/terminal/terminal_layout.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "host/hxahost/system/system.h"

namespace hxahost {

namespace {

bool GoesToTerminal(const QueryOptions& options) { return options.output.empty() && StandardOutputIsTerminal(); }

std::string_view Environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string_view() : std::string_view(value);
}

// A person who sets COLUMNS knows better than the terminal.
std::optional<std::size_t> ColumnsVariable() {
  const std::string_view text = Environment("COLUMNS");
  std::size_t columns = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), columns);
  if (error != std::errc() || stop != text.data() + text.size() || columns == 0) return std::nullopt;
  return columns;
}

std::size_t WidthOf(TerminalStream stream) {
  const auto columns = ColumnsVariable();
  const std::size_t width = columns ? *columns : TerminalWidth(stream).value_or(Page().width);
  return std::clamp(width, kNarrowestPage, kWidestPage);
}

// NO_COLOR, set to anything, is the wish of a person for every program.
bool HasColours(const QueryOptions& options) {
  if (!Environment("NO_COLOR").empty() || options.color == "never") return false;
  if (options.color == "always") return true;
  return GoesToTerminal(options) && TerminalTakesColours();
}

}  // namespace

Page PageFor(const QueryOptions& options) {
  Page page;
  if (options.width) {
    page.width = *options.width;
  } else if (GoesToTerminal(options)) {
    page.width = WidthOf(TerminalStream::kOutput);
  }
  page.hasColours = HasColours(options);
  return page;
}

bool IsAsciiPage(const QueryOptions& options) {
  return options.isAscii || (GoesToTerminal(options) && !TerminalShowsUtf8());
}

std::size_t ProgressWidth() { return WidthOf(TerminalStream::kError); }

}  // namespace hxahost
