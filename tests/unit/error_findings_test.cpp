#include "host/hxahost/machine/error_findings.h"

#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/filled_repository.h"

namespace {

using namespace hxahost;
using testing::ElementsAre;
using testing::IsEmpty;

using Brief = std::vector<std::string>;

Brief FindingsOf(const FilledRepository& repository, const Limits& limits = {}) {
  QueryHeader header;
  header.limits = limits;
  Brief brief;
  for (const Finding& finding : ErrorFindings(header, repository.Instances())) {
    brief.push_back(std::string(SeverityWord(finding.severity)) + ": " + finding.property + " " + finding.text);
  }
  return brief;
}

Brief OfErrors(const std::string& property, const std::string& count, const Limits& limits = {}) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxSCSIDeviceData", "Channel", "1", property, count);
  return FindingsOf(repository, limits);
}

Brief OfPeriods(const std::string& shortest, const std::string& current) {
  FilledRepository repository;
  repository.Publish("KVRSG_zxSCSISubStatData", "Channel", "1", "Max_Txer_P", shortest, "Cur_Txer_p", current);
  return FindingsOf(repository);
}

TEST(ErrorFindings, WarnOfACountFromItsLimitOn) {
  EXPECT_THAT(OfErrors("NumHardErrors", "0"), IsEmpty());
  EXPECT_THAT(OfErrors("NumHardErrors", "1"), ElementsAre("warning: NumHardErrors 1"));
  EXPECT_THAT(OfErrors("NumSoftErrors", "9"), IsEmpty());
  EXPECT_THAT(OfErrors("NumParityErrors", "10"), ElementsAre("warning: NumParityErrors 10"));
  EXPECT_THAT(OfErrors("Misc", "10"), IsEmpty());
}

TEST(ErrorFindings, WarnOfACountHoweverLarge) {
  for (const std::string count : {"2147483647", "2147483648", "18446744073709551615", "99999999999999999999"}) {
    EXPECT_THAT(OfErrors("NumHardErrors", count), ElementsAre("warning: NumHardErrors " + count));
  }
}

TEST(ErrorFindings, KeepALargeLimit) {
  Limits limits;
  limits.softErrors = std::numeric_limits<unsigned>::max();
  EXPECT_THAT(OfErrors("NumSoftErrors", "1", limits), IsEmpty());
  EXPECT_THAT(OfErrors("NumSoftErrors", "4294967295", limits), ElementsAre("warning: NumSoftErrors 4294967295"));
}

TEST(ErrorFindings, DoNotKnowACountThatIsNoNumber) {
  for (const std::string count : {"ff", "-3", "1 2", "0x3"}) {
    EXPECT_THAT(OfErrors("NumHardErrors", count), ElementsAre("unknown: NumHardErrors " + count));
  }
  EXPECT_THAT(OfErrors("NumHardErrors", ""), IsEmpty());
  Limits limits;
  limits.hardErrors.reset();
  EXPECT_THAT(OfErrors("NumHardErrors", "ff", limits), IsEmpty()) << "this count is not judged";
}

TEST(ErrorFindings, WarnOfTransfersThatAreSlowerThanTheDiskCan) {
  EXPECT_THAT(OfPeriods("8", "8"), IsEmpty());
  EXPECT_THAT(OfPeriods("10", "8"), IsEmpty());
  EXPECT_THAT(OfPeriods("", "8"), IsEmpty());
  EXPECT_THAT(OfPeriods("8", ""), IsEmpty());
  EXPECT_THAT(OfPeriods("8", "10"), ElementsAre("warning: Cur_Txer_p 10"));
  EXPECT_THAT(OfPeriods("8", "4294967304"), ElementsAre("warning: Cur_Txer_p 4294967304"));
}

TEST(ErrorFindings, DoNotKnowAPeriodThatIsNoNumber) {
  EXPECT_THAT(OfPeriods("8", "ff"), ElementsAre("unknown: Cur_Txer_p ff"));
  EXPECT_THAT(OfPeriods("-8", "8"), ElementsAre("unknown: Max_Txer_P -8"));
}

}  // namespace
