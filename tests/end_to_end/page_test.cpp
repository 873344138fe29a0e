// Tables in a file or a pipe: with the requested width, in ASCII on request, without colours.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/hxahost_run.h"

namespace {

using testing::HasSubstr;
using testing::Not;

ProgramResult Tables(std::vector<std::string> further) {
  further.insert(further.begin(), {"query", "--replay", RecordedSampleMachine(), "--class", "KVRSG_zxDiskDrive"});
  return RunHxahost(further);
}

TEST(PageOfAPipe, IsAHundredColumnsWideAndWithoutColours) {
  const ProgramResult result = Tables({});
  EXPECT_EQ(result.exitStatus, 0);
  EXPECT_THAT(result.out, Not(HasSubstr("\x1b")));
  EXPECT_THAT(result.out, HasSubstr("Failed"));
}

TEST(PageOfAPipe, HasColoursAndAsciiOnRequest) {
  const ProgramResult result = Tables({"--color", "always", "--ascii", "--width", "80"});
  EXPECT_THAT(result.out, HasSubstr("\x1b[31mFailed\x1b[0m"));
  for (const char character : result.out) ASSERT_LT(static_cast<unsigned char>(character), 0x80U) << result.out;
}

}  // namespace
