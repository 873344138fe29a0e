#include "plugin/host_interface/date_time.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <string_view>

#include <fmt/core.h>

#include "plugin/host_interface/exception.h"

namespace NKVRHXA20 {

namespace {

constexpr std::size_t kTextLength = 25;

struct Field {
  const char* name;
  std::size_t begin;
  std::size_t length;
  unsigned lowest;
  unsigned highest;
};

// yyyymmddhhmmss.mmmmmmsutc
constexpr Field kFields[] = {
    {"year",         0,  4, 0, 9999  },
    {"month",        4,  2, 1, 12    },
    {"day",          6,  2, 1, 31    },
    {"hour",         8,  2, 0, 23    },
    {"minute",       10, 2, 0, 59    },
    {"second",       12, 2, 0, 59    },
    {"microseconds", 15, 6, 0, 999999},
    {"UTC offset",   22, 3, 0, 999   },
};

[[noreturn]] void Reject(const std::string& text, const std::string& reason) {
  throw THXAException(fmt::format("\"{}\" is not a CIM date and time: {}", text, reason));
}

unsigned ReadField(const std::string& text, const Field& field) {
  unsigned number = 0;
  for (const char digit : std::string_view(text).substr(field.begin, field.length)) {
    if (digit < '0' || digit > '9') Reject(text, fmt::format("the {} is not a number", field.name));
    number = number * 10 + static_cast<unsigned>(digit - '0');
  }
  if (number < field.lowest || number > field.highest) Reject(text, fmt::format("the {} is out of range", field.name));
  return number;
}

}  // namespace

TCIMDateTime::TCIMDateTime() = default;

TCIMDateTime::TCIMDateTime(const std::string& text) {
  if (text.size() != kTextLength) Reject(text, "it does not have 25 characters");
  if (text[14] != '.') Reject(text, "no point precedes the microseconds");
  if (text[21] != '+' && text[21] != '-') Reject(text, "the UTC offset has no sign");
  std::array<unsigned, std::size(kFields)> numbers{};
  std::ranges::transform(kFields, numbers.begin(), [&](const Field& field) { return ReadField(text, field); });
  const std::chrono::year_month_day date{std::chrono::year(static_cast<int>(numbers[0])),
                                         std::chrono::month(numbers[1]), std::chrono::day(numbers[2])};
  if (!date.ok()) Reject(text, "the month has no such day");

  const int offset = static_cast<int>(numbers[7]);
  *this = TCIMDateTime(static_cast<std::uint16_t>(numbers[0]), static_cast<std::uint16_t>(numbers[1]), numbers[2],
                       static_cast<std::uint16_t>(numbers[3]), static_cast<std::uint16_t>(numbers[4]),
                       static_cast<std::uint16_t>(numbers[5]), numbers[6],
                       static_cast<std::int16_t>(text[21] == '-' ? -offset : offset));
}

TCIMDateTime::TCIMDateTime(std::uint16_t year, std::uint16_t month, std::uint32_t day, std::uint16_t hour,
                           std::uint16_t minute, std::uint16_t second, std::uint32_t microseconds,
                           std::int16_t utcOffsetMinutes)
    : year_(year),
      month_(month),
      day_(day),
      hour_(hour),
      minute_(minute),
      second_(second),
      microseconds_(microseconds),
      utcOffsetMinutes_(utcOffsetMinutes) {}

std::string TCIMDateTime::ToString() const {
  // Numbers that are too large make the text longer; nothing is cut off.
  return fmt::format("{:04}{:02}{:02}{:02}{:02}{:02}.{:06}{:+04}", year_, month_, day_, hour_, minute_, second_,
                     microseconds_, utcOffsetMinutes_);
}

}  // namespace NKVRHXA20
