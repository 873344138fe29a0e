#include "host/hxahost/result/unread_lines.h"

#include <algorithm>

#include <fmt/core.h>

#include "host/hxacore/value_reader.h"
#include "host/hxahost/result/property_values.h"
#include "host/hxahost/result/raw_text_values.h"
#include "host/hxahost/schema/class_names.h"
#include "host/hxahost/text/ascii.h"

using namespace NKVRHXA20;

namespace hxahost {

namespace {

bool IsOfRawText(const TPublishedInstance& instance) {
  return instance.Class().name == kRawDataClass || instance.Class().name == kManagerRawDataClass;
}

template <class Add>
void ForEachText(const TCIMValue& value, const Add& add) {
  switch (TCIMValueReader::Kind(value)) {
    case ValueKind::kNone:
    case ValueKind::kReference: return;
    case ValueKind::kString: return add(WithSingleBlanks(TCIMValueReader::Text(value)));
    case ValueKind::kDateTime: return add(TCIMValueReader::DateTime(value));
    case ValueKind::kUInt16:
    case ValueKind::kUInt32:
      add(std::to_string(TCIMValueReader::Number(value)));
      // Codes are published as numbers and printed as eight hexadecimal digits.
      return add(fmt::format("{:08x}", TCIMValueReader::Number(value)));
    case ValueKind::kArray:
      for (const TCIMValue& element : TCIMValueReader::Elements(value)) ForEachText(element, add);
  }
}

// The words between blanks and punctuation.
std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (const std::string_view word : SplitAtAny(text, " !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~")) {
    if (!word.empty()) words.emplace_back(word);
  }
  return words;
}

}  // namespace

ShownValues::ShownValues(const InstanceList& instances) {
  const auto add = [this](std::string text) {
    if (text.empty() || !texts_.insert(text).second) return;
    if (text.find(' ') == text.npos) return;
    for (std::string& word : WordsOf(text)) textsWith_[std::move(word)].push_back(longTexts_.size());
    longTexts_.push_back(std::move(text));
  };
  for (const auto& instance : instances) {
    if (IsOfRawText(*instance)) continue;
    for (const PublishedProperty& property : instance->Properties()) ForEachText(property.value, add);
  }
}

bool ShownValues::Shows(std::string_view value) const {
  const std::string words = WithSingleBlanks(value);
  return words.empty() || texts_.contains(words) || texts_.contains(Lower(words)) || ShowsPieces(words) ||
         ShowsWords(words);
}

bool ShownValues::ShowsPieces(std::string_view value) const {
  constexpr std::string_view kSeparators = ",/";
  if (value.find_first_of(kSeparators) == value.npos) return false;
  return std::ranges::all_of(SplitAtAny(value, kSeparators), [this](std::string_view piece) {
    const std::string words = WithSingleBlanks(piece);
    return words.empty() || texts_.contains(words);
  });
}

// One word occurs in some sentence by chance. Only the texts with the value's rarest word are searched, as the numbers
// of values and texts grow together.
bool ShownValues::ShowsWords(const std::string& value) const {
  if (value.find(' ') == value.npos) return false;
  const std::vector<std::size_t>* fewest = nullptr;
  for (const std::string& word : WordsOf(value)) {
    const auto texts = textsWith_.find(word);
    if (texts == textsWith_.end()) return false;
    if (fewest == nullptr || texts->second.size() < fewest->size()) fewest = &texts->second;
  }
  const auto isShownBy = [&value](const std::string& text) { return FindWords(text, value) != text.npos; };
  if (fewest == nullptr) return std::ranges::any_of(longTexts_, isShownBy);
  return std::ranges::any_of(*fewest, [&](std::size_t place) { return isShownBy(longTexts_[place]); });
}

std::vector<std::size_t> UnreadLines(const std::vector<std::string>& lines, const ShownValues& shown) {
  std::vector<std::size_t> unread;
  for (const RawValues& read : ReadRawValues(lines)) {
    if (std::ranges::all_of(read.values, [&shown](const std::string& value) { return shown.Shows(value); })) continue;
    for (std::size_t index = 0; index < read.lineCount; ++index) unread.push_back(read.firstLine + index);
  }
  return unread;
}

std::vector<UnreadText> FindUnreadLines(const InstanceList& instances) {
  const ShownValues shown(instances);
  std::vector<UnreadText> texts;
  for (std::size_t place = 0; place < instances.size(); ++place) {
    const TPublishedInstance& instance = *instances[place];
    if (!IsOfRawText(instance)) continue;
    UnreadText text;
    text.instance = place;
    for (const PublishedProperty& property : instance.Properties()) {
      if (property.name == "Command") text.command = TCIMValueReader::Text(property.value);
    }
    const std::vector<std::string> lines = RawElements(instance, "RawResults");
    text.unread = UnreadLines(lines, shown);
    for (const std::size_t line : text.unread) text.unreadLines.push_back(lines[line]);
    if (!text.unread.empty()) texts.push_back(std::move(text));
  }
  return texts;
}

}  // namespace hxahost
