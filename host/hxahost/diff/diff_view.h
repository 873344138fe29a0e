#pragma once

#include <ostream>
#include <string>

#include "host/hxahost/diff/result_diff.h"

namespace hxahost {

// The two files that are compared.
struct ComparedFile {
  std::string name;  // as it was passed
  std::string machine;
};

// For people: the worst change first, objects with the names that people use. With isVerbose every change is shown,
// with the path of its object.
void WriteDiffText(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff,
                   bool isVerbose);

// For programs, format 1. Keys may be added, nothing else may change.
void WriteDiffJson(std::ostream& out, const ComparedFile& before, const ComparedFile& after, const ResultDiff& diff,
                   bool isVerbose);

}  // namespace hxahost
