#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Converts bytes to lines of readable text, and back to the same bytes.
namespace hxahost {

// UTF-8 that is safe to show unchanged; \\ for a backslash, \r, \t and \n, and \xHH for each other byte.
std::string EscapeBytes(std::string_view bytes);

// Returns nothing if neither EscapeBytes nor that of an older program can have written the text.
std::optional<std::string> UnescapeBytes(std::string_view text);

// The same between quotation marks, which are \" inside.
std::string Quote(std::string_view bytes);
std::optional<std::string> Unquote(std::string_view text);

std::uint32_t Crc32(std::string_view bytes);

// Eight lower-case digits.
std::string HexText(std::uint32_t number);

// The shortest text that is read back as the same number.
std::string DecimalText(double number);

}  // namespace hxahost
