#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The secrets of a bundle, to be looked for in all of its texts.
namespace hxahost {

class Secrets {
 public:
  // Texts of fewer than three characters say nothing, and are everywhere.
  void Add(std::string_view secret);

  // To be called when all are there, before they are looked for.
  void Sort();

  // How long the longest secret is that is at this place of the text; 0: there is none. The folded text is that of
  // FoldCase. In prose, words are names where they equal one.
  std::size_t LengthAt(std::string_view text, std::string_view folded, std::size_t place, bool isProse) const;

 private:
  // Where a secret counts.
  enum class Where {
    kAnywhere,     // no tool has such a word, nor a part of one
    kAsWholeWord,  // no tool has such a word
    kInProse,      // a word of the tools, or a short number
  };
  struct Secret {
    std::string folded;
    Where where = Where::kAnywhere;
  };

  static Where WhereCounts(std::string_view folded);

  std::vector<Secret> secrets_;  // in their order, after Sort
};

}  // namespace hxahost
