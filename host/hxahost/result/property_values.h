#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Reads properties of an instance: the text for comparisons, and the text for people.
namespace hxahost {

// The text of a property without the white space at both ends, its bytes unchanged; "" if it was not set or is not
// a string.
std::string RawText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// A property for people, printable: the elements of an array with ", " between them, event codes in hexadecimal. ""
// if the property was not set.
std::string ShownText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// The elements of an array as texts, their bytes unchanged; empty if it was not set or is not an array.
std::vector<std::string> RawElements(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// The number of elements of an array; 0 for other values.
std::size_t ElementCount(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// "2026-03-05 12:30:15 +01:00" from the CIM form.
std::string ReadableTime(const std::string& cimDateTime);

// Seconds since 1970 of the CIM form; empty for other texts and for impossible dates.
std::optional<std::int64_t> SecondsSince1970(const std::string& cimDateTime);

}  // namespace hxahost
