#include "host/hxahost/program/program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace hxahost;

TEST(Program, WritesItsOutputToOut) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunProgram({"classes"}, out, err), 0);
  EXPECT_THAT(out.str(), testing::HasSubstr("KVRSG_zxLogicalDisk"));
  EXPECT_EQ(err.str(), "");
}

TEST(Program, PutsItsNameBeforeAnError) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunProgram({"query", "--repeat", "0"}, out, err), 2);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(err.str(), "hxahost: --repeat \"0\": give a whole number from 1 on.\n");
}

TEST(Program, LeavesTheHealthUnknownAfterAnyFailure) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunProgram({"health", "--format", "html"}, out, err), 3);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(err.str(), "hxahost: --format \"html\": give text, nagios, json or prometheus.\n");
  out.setstate(std::ios::badbit);
  EXPECT_EQ(RunProgram({"health", "--rules"}, out, err), 3);
}

TEST(Program, FailsWhenOutTakesNothing) {
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  std::ostringstream err;
  EXPECT_EQ(RunProgram({"schema"}, out, err), 1);
  EXPECT_THAT(err.str(), testing::HasSubstr("could not be written"));
}

}  // namespace
