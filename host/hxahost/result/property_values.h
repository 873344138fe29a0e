#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Properties of an instance: the text that programs compare and the one that people read.
namespace hxahost {

// The text of a property without the white space at both ends, its bytes untouched; "" where it was not set or is no
// single text.
std::string RawText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// A property for people, printable: the elements of an array with ", " between them, event codes in hexadecimal. ""
// for a property that was not set.
std::string ShownText(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// The elements of an array as texts, their bytes untouched; none where it was not set or is no array.
std::vector<std::string> RawElements(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// How many elements an array has; 0 for what is none.
std::size_t ElementCount(const NKVRHXA20::TPublishedInstance& instance, std::string_view property);

// "2026-03-05 12:30:15 +01:00" from the CIM form.
std::string ReadableTime(const std::string& cimDateTime);

// Seconds since 1970 of the CIM form; nothing for a text or a date that is none.
std::optional<std::int64_t> SecondsSince1970(const std::string& cimDateTime);

}  // namespace hxahost
