#include "logs/raid_mgr_event_time.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "collect/ascii_text.h"
#include "collect/tool_text.h"
#include "logs/raid_mgr_zones.h"

using NKVRHXA20::TCIMDateTime;

namespace {

constexpr int kMinutesPerHour = 60;

struct Month {
  char first;
  std::size_t position;  // of the letter that decides, counted from 0
  char letter;
  unsigned number;
};

constexpr Month kMonths[] = {
    {'A', 1, 'p', 4 },
    {'A', 1, 'u', 8 },
    {'D', 0, 'D', 12},
    {'F', 0, 'F', 2 },
    {'J', 3, 'u', 1 },
    {'J', 3, 'e', 6 },
    {'J', 3, 'y', 7 },
    {'M', 2, 'r', 3 },
    {'M', 2, 'y', 5 },
    {'N', 0, 'N', 11},
    {'O', 0, 'O', 10},
    {'S', 0, 'S', 9 },
};

struct EventTime {
  int year = 0;
  unsigned month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

char FirstOf(std::string_view text) { return text.empty() ? '\0' : text.front(); }

// Takes the text before the separator off the rest, and the separator with it. Without one it takes all.
std::string_view TakeUpTo(std::string_view& rest, char separator) {
  const std::string_view taken = rest.substr(0, rest.find(separator));
  rest.remove_prefix(std::min(taken.size() + 1, rest.size()));
  return taken;
}

int TakeNumber(std::string_view& rest, char separator) { return LeadingNumber(TakeUpTo(rest, separator)); }

void Skip(std::string_view& rest, std::size_t count) { rest.remove_prefix(std::min(count, rest.size())); }

// "5 March 2007 "
void TakeDayFirst(EventTime& time, std::string_view& rest) {
  time.day = TakeNumber(rest, ' ');
  time.month = MonthNumber(TakeUpTo(rest, ' '));
  time.year = TakeNumber(rest, ' ');
}

// "2007/03/05 "
void TakeYearFirst(EventTime& time, std::string_view& rest) {
  time.year = TakeNumber(rest, '/');
  time.month = static_cast<unsigned>(TakeNumber(rest, '/'));
  time.day = TakeNumber(rest, ' ');
}

// "Mar 5, 2007 "
void TakeMonthFirst(EventTime& time, std::string_view& rest) {
  time.month = MonthNumber(TakeUpTo(rest, ' '));
  time.day = TakeNumber(rest, ',');
  Skip(rest, 1);
  time.year = TakeNumber(rest, ' ');
}

// "11:02:03 "
void TakeClock(EventTime& time, std::string_view& rest) {
  time.hour = TakeNumber(rest, ':');
  time.minute = TakeNumber(rest, ':');
  time.second = TakeNumber(rest, ' ');
}

// "PM " of a line that begins with the month. Where neither A nor P is one character is passed over all the same,
// so that a zone that follows the seconds directly loses its first letter and counts as unknown.
void TakeHalfOfDay(EventTime& time, std::string_view& rest) {
  const char half = FirstOf(rest);
  if (half == 'P' && time.hour < 12) time.hour += 12;
  if (half == 'A' && time.hour == 12) time.hour = 0;
  if (half == 'P' || half == 'A') Skip(rest, 2);
  Skip(rest, 1);
}

TCIMDateTime WithZone(const EventTime& time, std::string_view zone) {
  return {static_cast<std::uint16_t>(time.year),
          static_cast<std::uint16_t>(time.month),
          static_cast<std::uint32_t>(time.day),
          static_cast<std::uint16_t>(time.hour),
          static_cast<std::uint16_t>(time.minute),
          static_cast<std::uint16_t>(time.second),
          0,
          static_cast<std::int16_t>(HoursFromUtc(zone) * kMinutesPerHour)};
}

}  // namespace

unsigned MonthNumber(std::string_view word) {
  const auto* const found = std::ranges::find_if(kMonths, [word](const Month& month) {
    return word.size() > month.position && word.front() == month.first && word[month.position] == month.letter;
  });
  return found == std::end(kMonths) ? 0 : found->number;
}

std::optional<TCIMDateTime> ReadEventTime(std::string_view line, std::string_view firstField) {
  EventTime time;
  std::string_view rest = firstField;
  if (IsDigit(FirstOf(line))) {
    const bool yearFirst = line.size() > 4 && line[4] == '/';
    yearFirst ? TakeYearFirst(time, rest) : TakeDayFirst(time, rest);
    TakeClock(time, rest);
  } else if (IsLetter(FirstOf(line))) {
    TakeMonthFirst(time, rest);
    TakeClock(time, rest);
    TakeHalfOfDay(time, rest);
  } else {
    return std::nullopt;
  }
  return WithZone(time, rest);
}
