#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <utility>

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

  using Entry = std::pair<Digest, Digest>;

  // The properties of an earlier instance with this path. If there is none, the path gets these.
  std::optional<Digest> Remember(const Digest& path, const Digest& properties);
  void SortIn();

  // The properties by the path, as digests, because the texts may take more memory than everything else. There may be
  // millions: most of them are in a sorted deque, which takes half the memory of a map.
  std::deque<Entry> sorted_;
  std::map<Digest, Digest> newest_;
};

// Says in one line that an instance is left out, and why.
std::string LeftOutText(const NKVRHXA20::TPublishedInstance& instance);

}  // namespace hxahost
