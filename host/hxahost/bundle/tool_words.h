#pragma once

#include <string_view>

// The words by which the tools' texts are read: of labels, states and fixed lines.
namespace hxahost {

// Whether the text, in lower case, consists only of such words: such a name does not identify its owner, and replacing
// it everywhere would make the text unreadable.
bool HasToolWordsAlone(std::string_view folded);

// Whether the text, in lower case, is a part of such a word.
bool IsPartOfToolWord(std::string_view folded);

}  // namespace hxahost
