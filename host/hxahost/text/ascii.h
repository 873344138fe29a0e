#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// ASCII text, whatever the locale says of a letter. Bytes that are not ASCII stay as they are.
namespace hxahost {

// Blanks, tabs and line ends.
constexpr std::string_view kWhiteSpace = " \t\r\n";

// The text without the white space at both ends.
std::string_view Trim(std::string_view text);

// The text with its capital letters as small ones.
std::string Lower(std::string_view text);

// The text with its small letters as capital ones.
std::string Upper(std::string_view text);

// What is between the separators, empty pieces included: one more than there are separators.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

// The same where each of the characters is a separator.
std::vector<std::string_view> SplitAtAny(std::string_view text, std::string_view separators);

// The text with one blank for all white space between words, and none at the ends.
std::string WithSingleBlanks(std::string_view text);

// Where the words begin in the text, from the given place on, with no letter or digit directly around them; npos where
// they do not.
std::size_t FindWords(std::string_view text, std::string_view words, std::size_t from = 0);

// 46 of "46 C/ 114 F": the decimal number that the text begins with.
std::optional<double> LeadingNumber(std::string_view text);

// Whether the text is a decimal number without a sign.
bool IsDigits(std::string_view text);

}  // namespace hxahost
