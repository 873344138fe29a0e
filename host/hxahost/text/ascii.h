#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Functions for ASCII text, independent of the locale. Bytes that are not ASCII are not changed.
namespace hxahost {

// Blanks, tabs and line ends.
constexpr std::string_view kWhiteSpace = " \t\r\n";

// The text without the white space at both ends.
std::string_view Trim(std::string_view text);

// The text with capital letters converted to small ones.
std::string Lower(std::string_view text);

// The text with small letters converted to capital ones.
std::string Upper(std::string_view text);

// The pieces between the separators, empty ones included: one more than there are separators.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// The same; each of the characters is a separator.
std::vector<std::string_view> SplitAtAny(std::string_view text, std::string_view separators);

// The text with one blank for all white space between words, and none at the ends.
std::string WithSingleBlanks(std::string_view text);

// The place of the words in the text, at or after the given place, without a letter or digit directly before or after
// them; npos if they do not occur.
std::size_t FindWords(std::string_view text, std::string_view words, std::size_t from = 0);

// 46 of "46 C/ 114 F": the decimal number that the text begins with.
std::optional<double> LeadingNumber(std::string_view text);

// Whether the text is a decimal number without a sign.
bool IsDigits(std::string_view text);

// A number without a sign; one beyond the range is the greatest.
std::optional<std::uint64_t> ReadCount(std::string_view text);

}  // namespace hxahost
