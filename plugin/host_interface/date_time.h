#pragma once

#include <cstdint>
#include <string>

#include "plugin/host_interface/export.h"

namespace NKVRHXA20 {

// A CIM date and time. Its text form has 25 characters, yyyymmddhhmmss.mmmmmmsutc; the offset from UTC is in minutes.
class HXACORE_API TCIMDateTime {
 public:
  // All zeros.
  TCIMDateTime();

  // From the text form. Throws THXAException unless form and ranges are those of a date and time.
  explicit TCIMDateTime(const std::string& text);

  // The numbers are kept as they are, also where no calendar has them (month 0).
  TCIMDateTime(std::uint16_t year, std::uint16_t month, std::uint32_t day, std::uint16_t hour, std::uint16_t minute,
               std::uint16_t second, std::uint32_t microseconds, std::int16_t utcOffsetMinutes);

  // The text form.
  std::string ToString() const;

 private:
  std::uint16_t year_ = 0;
  std::uint16_t month_ = 0;
  std::uint32_t day_ = 0;
  std::uint16_t hour_ = 0;
  std::uint16_t minute_ = 0;
  std::uint16_t second_ = 0;
  std::uint32_t microseconds_ = 0;
  std::int16_t utcOffsetMinutes_ = 0;
};

}  // namespace NKVRHXA20
