#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

#include "host/hxahost/diff/finding_diff.h"
#include "host/hxahost/diff/object_names.h"
#include "host/hxahost/result/json_result.h"

// The differences between two results, the worst first.
namespace hxahost {

enum class ChangeGroup {
  kDisappeared,
  kState,
  kAppeared,
  kProperty,
  kLogRecord,  // a record appeared or disappeared
  kLink,       // a link appeared or disappeared
  kCounter,    // a count that never decreases has grown
  kTime,       // a time of collection; not a difference
};

// "disappeared", "state", ...: programs rely on the words.
std::string_view GroupWord(ChangeGroup group);

enum class ChangeKind { kDisappeared, kAppeared, kChanged };
std::string_view KindWord(ChangeKind kind);

struct Change {
  ChangeGroup group = ChangeGroup::kProperty;
  ChangeKind kind = ChangeKind::kChanged;
  std::string className;
  std::string path;     // in the old result, if it is there
  std::string newPath;  // if it is different
  std::string property;
  nlohmann::ordered_json before;  // null: not there
  nlohmann::ordered_json after;
  ObjectName named = {};     // in the old result, if it is there
  std::string newName = {};  // if it is different
};

// A command whose raw text is different.
struct RawTextChange {
  std::string command;
  ChangeKind kind = ChangeKind::kChanged;
  std::size_t linesGone = 0;
  std::size_t linesNew = 0;
};

struct ResultDiff {
  std::vector<Change> changes;  // by group, then in the order of the results
  std::vector<RawTextChange> rawTexts;
  std::vector<FindingChange> findings = {};  // of the rules of health
};

ResultDiff CompareResults(const JsonResult& before, const JsonResult& after);

// Whether the results are equal except for times of collection.
bool IsSame(const ResultDiff& diff);

}  // namespace hxahost
