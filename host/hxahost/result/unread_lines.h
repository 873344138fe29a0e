#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "host/hxahost/result/query_result.h"

// Lines of the tools' texts whose values no property shows: the data that a new layout of a tool would lose unnoticed.
namespace hxahost {

// Every value in the instances, except the raw texts themselves.
class ShownValues {
 public:
  explicit ShownValues(const InstanceList& instances);

  // Ignores blanks at the ends and the number of blanks between words. A value is shown as a property or an element of
  // one, as several of them ("0,8", "34715/71096320"), or, if it has several words, as consecutive words of one.
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

// Every raw text with such lines, in the order of publication. All classes must have been queried, as values of other
// classes would count as not shown.
std::vector<UnreadText> FindUnreadLines(const InstanceList& instances);

}  // namespace hxahost
