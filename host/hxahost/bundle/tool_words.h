#pragma once

#include <string_view>

// The words that the tools' texts are read by: of labels, states and fixed lines.
namespace hxahost {

// Whether the text, in lower case, consists of such words alone: a name that does says nothing of whose it is, and to
// replace it everywhere would leave a text that cannot be read.
bool HasToolWordsAlone(std::string_view folded);

// Whether the text, in lower case, is a part of such a word.
bool IsPartOfToolWord(std::string_view folded);

}  // namespace hxahost
