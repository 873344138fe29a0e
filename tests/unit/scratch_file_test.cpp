#include "host/hxahost/system/scratch_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;

TEST(ScratchFile, ReadsPiecesInAnyOrder) {
  const TemporaryFolder folder;
  ScratchFile file(folder.Path());
  const std::string large(100'000, '\n');
  const auto first = file.Append(std::string("one\0\r\n", 6));
  const auto second = file.Append(large);
  EXPECT_EQ(file.Read(second), large);
  EXPECT_EQ(file.Read(first), std::string("one\0\r\n", 6));
  const auto third = file.Append("three");
  EXPECT_EQ(file.Read({}), "");
  EXPECT_EQ(file.Read(third), "three");
  EXPECT_EQ(file.Read(second), large);
}

TEST(ScratchFile, LeavesNothing) {
  const TemporaryFolder folder;
  ScratchFile(folder.Path()).Append("bytes");
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(ScratchFile, NeedsAFolder) {
  const TemporaryFolder folder;
  EXPECT_THAT([&] { ScratchFile(folder.Path() / "missing"); },
              testing::ThrowsMessage<hxahost::ProgramError>(
                  testing::AllOf(testing::HasSubstr("missing"), testing::HasSubstr("No such file or directory"))));
}

}  // namespace
