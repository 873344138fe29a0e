// Results that are compared: the input is one file, or two with a separator between them.
#include <cstddef>
#include <sstream>
#include <string>

#include <nlohmann/json.hpp>

#include "fuzz/support/fuzzer.h"
#include "fuzz/support/require.h"
#include "fuzz/support/sections.h"
#include "fuzz/support/text_checks.h"
#include "host/hxahost/diff/result_diff.h"
#include "host/hxahost/program/formats.h"
#include "host/hxahost/result/json_result.h"
#include "host/hxahost/system/exit_status.h"

using namespace hxahost;

namespace {

JsonResult Read(const std::string& text) { return ParseJsonResult(text, "result.json"); }

std::size_t CountOf(const ResultDiff& diff, ChangeKind kind) {
  std::size_t count = 0;
  for (const Change& change : diff.changes) count += change.kind == kind ? 1 : 0;
  return count;
}

void CheckViews(const JsonResult& before, const JsonResult& after, const ResultDiff& diff) {
  for (const Format& format : FormatsOf("diff")) {
    std::ostringstream out;
    std::get<DiffWriter>(format.writer)(out, {"old.json", before.machine}, {"new.json", after.machine}, diff, false);
    if (format.name == "json") {
      Require(nlohmann::json::parse(out.str())["changes"].size() == diff.changes.size(), "every change is read back");
    } else {
      RequirePlainLines(out.str());
    }
  }
}

void Compare(const JsonResult& before, const JsonResult& after) {
  const ResultDiff there = CompareResults(before, after);
  const ResultDiff back = CompareResults(after, before);
  Require(CountOf(there, ChangeKind::kAppeared) == CountOf(back, ChangeKind::kDisappeared),
          "what appears one way disappears the other way");
  Require(IsSame(there) == IsSame(back), "two results are equal in both directions");
  CheckViews(before, after, there);
}

void CompareWithItself(const JsonResult& result) {
  const ResultDiff diff = CompareResults(result, result);
  Require(IsSame(diff) && diff.changes.empty() && diff.rawTexts.empty(), "a result equals itself");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Sections input(data, size);
  try {
    const JsonResult before = Read(input.TextAt(0));
    CompareWithItself(before);
    const JsonResult after = Read(input.TextAt(1));
    Compare(before, after);
  } catch (const ProgramError& error) {
    RequirePlainLines(error.what());
  }
  return 0;
}
