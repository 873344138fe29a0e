#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "host/hxahost/bundle/folded_text.h"

// The secrets of a bundle, searched for in all of its texts.
namespace hxahost {

class Secrets {
 public:
  // Ignores texts of fewer than three characters: they identify nothing and occur everywhere.
  void Add(std::string_view secret);

  // Call it after the last Add and before the first search.
  void Sort();

  // The length of the longest secret at this place of the text, in any letter case and either encoding; 0 if there is
  // none. In prose, a word that equals a name is masked, too.
  std::size_t LengthAt(std::string_view text, std::size_t place, bool isProse) const;

 private:
  // Where a secret is masked.
  enum class Where {
    kAnywhere,     // it is neither a word of the tools nor a part of one
    kAsWholeWord,  // it is not a word of the tools
    kInProse,      // it is a word of the tools, or a short number
  };
  struct Secret {
    std::u32string folded;
    Where where = Where::kAnywhere;
  };

  static Where WhereCounts(std::u32string_view folded);
  void AddFolded(std::u32string_view folded);
  std::size_t LengthAt(std::string_view text, std::size_t place, bool isProse, Reading reading) const;

  std::vector<Secret> secrets_;  // sorted after Sort
  bool hasOtherThanAscii_ = false;
};

}  // namespace hxahost
