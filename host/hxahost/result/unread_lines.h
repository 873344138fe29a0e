#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Lines of the tools' texts whose values no property shows: what a new layout of a tool would lose without a word.
namespace hxahost {

// Everything that the instances show, but for the raw texts themselves.
class ShownValues {
 public:
  explicit ShownValues(const InstanceList& instances);

  // Blanks at the ends and their number between words do not count. A value is shown as a property or an element of
  // one, as several of them ("0,8", "34715/71096320"), or, where it is of several words, as whole words of one.
  bool Shows(std::string_view value) const;

 private:
  bool ShowsPieces(std::string_view value) const;
  bool ShowsWords(const std::string& value) const;

  std::unordered_set<std::string> texts_;
  std::vector<std::string> longTexts_;                                   // of several words
  std::unordered_map<std::string, std::vector<std::size_t>> textsWith_;  // places in longTexts_, by each word in them
};

// The raw text of one command.
struct UnreadText {
  std::size_t instance = 0;              // its place among the instances
  std::string command;                   // as published
  std::vector<std::size_t> unread;       // places in its lines, in order
  std::vector<std::string> unreadLines;  // the same lines, as published
};

// The places of a text's unread lines.
std::vector<std::size_t> UnreadLines(const std::vector<std::string>& lines, const ShownValues& shown);

// Every raw text that has such lines, in the order of publication. All classes must have been published: what was not
// asked for is shown by nothing.
std::vector<UnreadText> FindUnreadLines(const InstanceList& instances);

}  // namespace hxahost
