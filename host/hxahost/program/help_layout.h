#pragma once

#include <cstddef>
#include <string>

#include <CLI/CLI.hpp>

namespace hxahost {

constexpr std::size_t kHelpWidth = 80;  // columns

// The layout of --help: descriptions continue below their beginning.
class HelpLayout : public CLI::Formatter {
 public:
  HelpLayout();

  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
};

}  // namespace hxahost
