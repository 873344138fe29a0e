#pragma once

#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "host/hxahost/diff/result_diff.h"

namespace hxahost {

// The two files that are compared.
struct ComparedFile {
  std::string name;  // as it was given
  std::string machine;
};

// One way to show differences.
struct DiffView {
  std::string_view format;
  void (*Write)(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff);
};

// The default first.
std::span<const DiffView> DiffViews();

// Null where there is no such format.
const DiffView* FindDiffView(std::string_view format);

}  // namespace hxahost
