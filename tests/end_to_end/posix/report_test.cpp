#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"

namespace {

TEST(Report, ReportsAFullDisk) {
  const ProgramResult result = RunHxahost(
      {"query", "--directory", hxahost::Utf8FromPath(SampleMachine()), "--format", "html", "--output", "/dev/full"});
  EXPECT_EQ(result.exitStatus, 1);
  EXPECT_THAT(result.err, testing::HasSubstr("see whether there is room on the disk"));
}

}  // namespace
