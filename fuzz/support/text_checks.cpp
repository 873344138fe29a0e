#include "fuzz/support/text_checks.h"

#include <algorithm>
#include <set>
#include <string>

#include <nlohmann/json.hpp>

#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"

namespace {

bool IsNameCharacter(char character) {
  return (character >= 'a' && character <= 'z') || character == '_' || (character >= '0' && character <= '9');
}

std::string_view TakeName(std::string_view& rest) {
  const auto length = static_cast<std::size_t>(std::ranges::find_if_not(rest, IsNameCharacter) - rest.begin());
  const std::string_view name = rest.substr(0, length);
  rest.remove_prefix(length);
  return name;
}

void Take(std::string_view& rest, char character, std::string_view line) {
  Require(rest.starts_with(character), "a sample is a name, labels in quotes and a number", line);
  rest.remove_prefix(1);
}

void TakeQuoted(std::string_view& rest, std::string_view line) {
  Take(rest, '"', line);
  while (!rest.empty() && rest.front() != '"') {
    const bool isEscape = rest.front() == '\\';
    if (isEscape) {
      Require(rest.size() > 1 && std::string_view("\\\"n").find(rest[1]) != std::string_view::npos,
              "a label's escapes are those of the format", line);
    }
    rest.remove_prefix(isEscape ? 2 : 1);
  }
  Take(rest, '"', line);
}

void TakeLabels(std::string_view& rest, std::string_view line) {
  if (!rest.starts_with('{')) return;
  do {
    rest.remove_prefix(1);
    Require(!TakeName(rest).empty(), "a label has a name", line);
    Take(rest, '=', line);
    TakeQuoted(rest, line);
  } while (rest.starts_with(','));
  Take(rest, '}', line);
}

}  // namespace

// Uses the library's own check: it throws for text that is not UTF-8.
void RequireUtf8(std::string_view text) {
  try {
    Require(!nlohmann::json(text).dump().empty(), "the text is valid UTF-8");
  } catch (const nlohmann::json::exception&) {
    Require(false, "it is UTF-8", text);
  }
}

void RequirePlainLines(std::string_view text) {
  RequireUtf8(text);
  for (std::size_t index = 0; index < text.size(); ++index) {
    const auto byte = static_cast<unsigned char>(text[index]);
    const bool isC1 = byte == 0xc2 && index + 1 < text.size() && static_cast<unsigned char>(text[index + 1]) < 0xa0;
    Require((byte >= ' ' && byte != 0x7f && !isC1) || byte == '\n', "no control character is written",
            text.substr(0, index));
  }
}

void RequireMetrics(std::string_view text) {
  RequirePlainLines(text);
  std::set<std::string> samples;
  for (const std::string& line : Split(text, '\n')) {
    if (line.empty() || line.starts_with("# ")) continue;
    std::string_view rest = line;
    Require(!TakeName(rest).empty(), "a sample has a name", line);
    TakeLabels(rest, line);
    Require(samples.insert(line.substr(0, line.size() - rest.size())).second, "no sample occurs twice", line);
    Take(rest, ' ', line);
    Require(!rest.empty() && rest.find_first_not_of("0123456789.-+e") == rest.npos, "a sample is a number", line);
  }
}

std::size_t CountOf(std::string_view text, std::string_view searched) {
  std::size_t count = 0;
  for (std::size_t at = text.find(searched); at != text.npos; at = text.find(searched, at + 1)) ++count;
  return count;
}
