#include "host/hxahost/terminal/state_colour.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace hxahost {

namespace {

constexpr std::string_view kRed = "\x1b[31m";
constexpr std::string_view kYellow = "\x1b[33m";
constexpr std::string_view kGreen = "\x1b[32m";
constexpr std::string_view kPlain = "\x1b[0m";

struct WordColour {
  std::string_view word;  // in lower case
  std::string_view colour;
};

// The first words of the states that the utilities print. "Yes" is the answer to whether something is defunct, blocked
// or about to fail.
constexpr WordColour kWordColours[] = {
    {"failed",     kRed   },
    {"offline",    kRed   },
    {"defunct",    kRed   },
    {"missing",    kRed   },
    {"dead",       kRed   },
    {"yes",        kRed   },
    {"critical",   kYellow},
    {"degraded",   kYellow},
    {"rebuild",    kYellow},
    {"rebuilding", kYellow},
    {"impacted",   kYellow},
    {"warning",    kYellow},
    {"online",     kGreen },
    {"okay",       kGreen },
    {"optimal",    kGreen },
    {"ready",      kGreen },
    {"hot",        kGreen },
    {"standby",    kGreen },
};

std::string FirstLetters(std::string_view text) {
  std::string word;
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (std::isalpha(byte) == 0) break;
    word += static_cast<char>(std::tolower(byte));
  }
  return word;
}

}  // namespace

std::string InStateColour(std::string_view text) {
  const auto* const found = std::ranges::find(kWordColours, FirstLetters(text), &WordColour::word);
  if (found == std::end(kWordColours)) return std::string(text);
  return std::string(found->colour).append(text).append(kPlain);
}

}  // namespace hxahost
