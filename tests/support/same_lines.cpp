#include "tests/support/same_lines.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

#include "tests/support/file_text.h"
#include "tests/support/source_folder.h"

namespace {

Lines LinesOf(const std::string& text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  if (!text.ends_with('\n')) lines.emplace_back("(no line end)");
  return lines;
}

struct Place {
  std::size_t expected;
  std::size_t actual;
};

// The next place at which both have the same line, or both end, with the fewest lines before it.
Place NextSame(const Lines& expected, const Lines& actual, Place from) {
  for (std::size_t lines = 0;; ++lines) {
    for (std::size_t ofExpected = 0; ofExpected <= lines; ++ofExpected) {
      const Place place = {from.expected + ofExpected, from.actual + lines - ofExpected};
      const bool isInExpected = place.expected < expected.size();
      const bool isInActual = place.actual < actual.size();
      if (isInExpected && isInActual && expected[place.expected] == actual[place.actual]) return place;
      if (place.expected == expected.size() && place.actual == actual.size()) return place;
    }
  }
}

}  // namespace

testing::AssertionResult SameLines(const Lines& expected, const Lines& actual) {
  std::string difference;
  for (Place at = {0, 0}; at.expected < expected.size() || at.actual < actual.size(); ++at.expected, ++at.actual) {
    const Place same = NextSame(expected, actual, at);
    for (; at.expected < same.expected; ++at.expected) difference += "\n- " + expected[at.expected];
    for (; at.actual < same.actual; ++at.actual) difference += "\n+ " + actual[at.actual];
  }
  return difference.empty() ? testing::AssertionSuccess() : testing::AssertionFailure() << difference;
}

testing::AssertionResult SameText(const std::string& expected, const std::string& actual) {
  return SameLines(LinesOf(expected), LinesOf(actual));
}

testing::AssertionResult IsGolden(const std::string& name, const std::string& text) {
  const std::filesystem::path file = SourceFile("tests/golden") / name;
  if (std::getenv("ZENX_RENEW_GOLDEN") != nullptr) WriteFileText(file, text);
  return SameText(FileText(file), text) << "\nZENX_RENEW_GOLDEN=1 renews tests/golden/" << name;
}
