#pragma once

#include <string>
#include <unordered_map>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The queries of one run of the program for formats in which each path is there once: CIM repositories hold one
// instance of a path.
class UniquePaths {
 public:
  // The query with the machine's own instance first, and each instance whose path none had before, in their order. One
  // that is equal to the first of its path is dropped; one that is not is among those left out.
  QueryResult Of(const QueryHeader& header, const QueryResult& result);

 private:
  std::unordered_map<std::string, boost::shared_ptr<const NKVRHXA20::TPublishedInstance>> first_;  // by path
};

// Says in one line that an instance is left out, and why.
std::string LeftOutText(const NKVRHXA20::TPublishedInstance& instance);

}  // namespace hxahost
