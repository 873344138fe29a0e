#include "host/hxahost/program/help_layout.h"

#include <fmt/format.h>

#include "host/hxahost/terminal/wrap.h"

namespace hxahost {

HelpLayout::HelpLayout() {
  constexpr std::size_t kNames = 28;  // columns
  column_width(kNames);
}

std::string HelpLayout::make_option_opts(const CLI::Option* option) const {
  return option->get_type_name().empty() || option->get_type_size() == 0 ? "" : " " + option->get_type_name();
}

std::string HelpLayout::make_option_desc(const CLI::Option* option) const {
  const std::string value = option->get_default_str();
  const std::string text = option->get_description() + (value.empty() ? "" : fmt::format(" (default: {})", value));
  return fmt::format("{}", fmt::join(WrapWords(text, kHelpWidth - get_column_width()), "\n"));
}

}  // namespace hxahost
