#include "host/hxahost/machine/state_words.h"

#include <algorithm>
#include <cctype>

#include "host/hxahost/text/ascii.h"

namespace hxahost {

namespace {

bool IsZero(std::string_view number) { return number.find_first_not_of('0') == std::string_view::npos; }

void AddWord(Words& words, std::string_view text) {
  std::string word = NormalWord(text);
  if (!word.empty()) words.push_back(std::move(word));
}

// "Hot Spare for Logical drive 1": the state is the part before " for ". Other states keep it: "Ready for removal" is
// not ready.
std::string_view WithoutPurpose(std::string_view state) {
  const std::string_view before = state.substr(0, state.find(" for "));
  return NormalWord(before).ends_with("spare") ? before : state;
}

// A hyphen within a word joins it; a hyphen between blanks separates two words.
std::string WithCommasForDashes(std::string_view text) {
  std::string converted(text);
  for (std::size_t dash = converted.find(" - "); dash != converted.npos; dash = converted.find(" - ", dash + 1)) {
    converted[dash + 1] = ',';
  }
  return converted;
}

}  // namespace

std::string NormalWord(std::string_view text) {
  std::string word;
  bool isBlankDue = false;
  for (const char character : text) {
    if (character == '-' || kWhiteSpace.find(character) != kWhiteSpace.npos) {
      isBlankDue = !word.empty();
      continue;
    }
    if (isBlankDue) word += ' ';
    isBlankDue = false;
    word += static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
  }
  return word;
}

Words StateWords(std::string_view text) {
  Words words;
  const std::string parted = WithCommasForDashes(text);
  for (const std::string_view part : SplitAtAny(parted, ",;()")) AddWord(words, WithoutPurpose(part));
  return words;
}

Words FirstWord(std::string_view text) {
  Words words;
  const std::string_view trimmed = Trim(text);
  AddWord(words, trimmed.substr(0, trimmed.find_first_of(" \t\r\n(,;")));
  return words;
}

Words BracketedWords(std::string_view text) {
  Words words;
  for (std::size_t open = text.find('('); open != text.npos; open = text.find('(', open + 1)) {
    AddWord(words, text.substr(open + 1, text.find(')', open) - open - 1));
  }
  return words;
}

Words CountWords(std::string_view text) {
  const std::string word = NormalWord(text);
  if (word.empty()) return {};
  if (!IsDigits(word)) return {word};
  return {IsZero(word) ? "none" : "some"};
}

Words DriveCountWords(std::string_view text) {
  const std::string word = NormalWord(text);
  if (word.empty()) return {};
  std::vector<std::string> counts;
  for (const std::string_view part : Split(word, "/")) counts.push_back(NormalWord(part));
  if (counts.size() != 3 || !std::ranges::all_of(counts, IsDigits)) return {word};
  Words words;
  if (!IsZero(counts[1])) words.emplace_back("offline");
  if (!IsZero(counts[2])) words.emplace_back("critical");
  if (words.empty()) words.emplace_back("none");
  return words;
}

Words WholeText(std::string_view text) {
  Words words;
  AddWord(words, text);
  return words;
}

Words LogHead(std::string_view text) { return WholeText(text.substr(0, text.find_first_of(":."))); }

}  // namespace hxahost
