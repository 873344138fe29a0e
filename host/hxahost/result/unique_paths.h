#pragma once

#include <string>
#include <unordered_map>

#include <boost/functional/hash.hpp>
#include <boost/uuid/uuid.hpp>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The queries of one run of the program for formats in which each path is there once: CIM repositories hold one
// instance of a path.
class UniquePaths {
 public:
  enum class Path {
    kNew,
    kEqual,  // an instance that is equal has it
    kTaken,  // another instance has it
  };

  // Whether an instance that was added before has the path, too.
  Path Add(const NKVRHXA20::TPublishedInstance& instance);

 private:
  using Digest = boost::uuids::uuid;

  // The properties by the path: both may take more memory than all else, so that they are held as digests.
  std::unordered_map<Digest, Digest, boost::hash<Digest>> first_;
};

// Says in one line that an instance is left out, and why.
std::string LeftOutText(const NKVRHXA20::TPublishedInstance& instance);

}  // namespace hxahost
