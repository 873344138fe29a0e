#pragma once

#include <ostream>
#include <span>
#include <string_view>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// One way to show queries. A query is written as soon as it is done, so that only one is held at a time.
struct View {
  std::string_view format;
  void (*Begin)(std::ostream& out, const QueryHeader& header);
  void (*Query)(std::ostream& out, const QueryHeader& header, const QueryResult& result);
  void (*End)(std::ostream& out, const QueryHeader& header);
};

// The default first.
std::span<const View> Views();

// Null where there is no such format.
const View* FindView(std::string_view format);

}  // namespace hxahost
