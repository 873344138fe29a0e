#include "host/hxahost/machine/finding.h"

#include <gtest/gtest.h>

namespace {

using namespace hxahost;

Findings Of(std::initializer_list<Severity> severities) {
  Findings findings;
  for (const Severity severity : severities) findings.push_back({severity, "", "", "", "", "", {}});
  return findings;
}

TEST(Finding, SeveritiesAreTheExitStatusesOfMonitoringPlugins) {
  EXPECT_EQ(static_cast<int>(Severity::kFine), 0);
  EXPECT_EQ(static_cast<int>(Severity::kWarning), 1);
  EXPECT_EQ(static_cast<int>(Severity::kCritical), 2);
  EXPECT_EQ(static_cast<int>(Severity::kUnknown), 3);
}

TEST(Finding, SeveritiesHaveWords) {
  EXPECT_EQ(SeverityWord(Severity::kFine), "ok");
  EXPECT_EQ(SeverityWord(Severity::kWarning), "warning");
  EXPECT_EQ(SeverityWord(Severity::kCritical), "critical");
  EXPECT_EQ(SeverityWord(Severity::kUnknown), "unknown");
}

TEST(Finding, CriticalIsWorseThanWarningThanUnknownThanFine) {
  const Severity fromWorst[] = {Severity::kCritical, Severity::kWarning, Severity::kUnknown, Severity::kFine};
  for (std::size_t left = 0; left < 4; ++left) {
    for (std::size_t right = 0; right < 4; ++right) {
      EXPECT_EQ(IsWorse(fromWorst[left], fromWorst[right]), left < right) << left << " against " << right;
    }
  }
}

TEST(Finding, TheWorstOfAllCounts) {
  EXPECT_EQ(WorstOf({}), Severity::kFine);
  EXPECT_EQ(WorstOf(Of({Severity::kUnknown})), Severity::kUnknown);
  EXPECT_EQ(WorstOf(Of({Severity::kUnknown, Severity::kWarning})), Severity::kWarning);
  EXPECT_EQ(WorstOf(Of({Severity::kWarning, Severity::kCritical, Severity::kUnknown})), Severity::kCritical);
}

}  // namespace
