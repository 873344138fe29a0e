#pragma once

#include <span>
#include <string_view>

#include "host/hxahost/machine/finding.h"

namespace hxahost {

// The symbol and words of a level in the HTML report, beside its colour.
struct LevelMark {
  Level level;
  std::string_view symbol;
  std::string_view words;
};

// The worst first.
std::span<const LevelMark> LevelMarks();

const LevelMark& MarkOf(Level level);

}  // namespace hxahost
