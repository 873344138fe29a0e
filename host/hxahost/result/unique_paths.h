#pragma once

#include <string>
#include <unordered_map>

#include <boost/functional/hash.hpp>
#include <boost/uuid/uuid.hpp>

#include "host/hxahost/result/query_result.h"

namespace hxahost {

// The paths of the instances of one program run, for formats in which each path occurs once: a CIM repository holds one
// instance of a path.
class UniquePaths {
 public:
  enum class Path {
    kNew,
    kEqual,  // an equal instance has it
    kTaken,  // another instance has it
  };

  // Adds an instance, and returns whether an earlier one has its path.
  Path Add(const NKVRHXA20::TPublishedInstance& instance);

 private:
  using Digest = boost::uuids::uuid;

  // The properties by the path, as digests, because the texts may take more memory than everything else.
  std::unordered_map<Digest, Digest, boost::hash<Digest>> first_;
};

// Says in one line that an instance is left out, and why.
std::string LeftOutText(const NKVRHXA20::TPublishedInstance& instance);

}  // namespace hxahost
