#include "host/hxahost/system/file_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "host/hxahost/system/exit_status.h"
#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;

TEST(FilePlace, IsTheSameForEverySpellingOfAPath) {
  const TemporaryFolder folder;
  const fs::path there = folder.Write("there", "text");
  fs::create_directory(folder.Path() / "sub");
  for (const fs::path& file : {there, folder.Path() / "not there"}) {
    EXPECT_TRUE(LeadToOneFile(file, folder.Path() / "." / file.filename()));
    EXPECT_TRUE(LeadToOneFile(file, folder.Path() / "sub" / ".." / file.filename()));
    EXPECT_FALSE(LeadToOneFile(file, folder.Path() / "other"));
    EXPECT_FALSE(LeadToOneFile(file, folder.Path() / "sub" / file.filename()));
  }
  EXPECT_TRUE(LeadToOneFile("not there", fs::absolute("not there")));
}

TEST(FilePlace, OfAnOutputIsNoneOfAnotherOutputOrOfAnInput) {
  const TemporaryFolder folder;
  const NamedFile output{"--output", folder.Path() / "one"};
  const NamedFile same{"", folder.Path() / "." / "one"};
  const NamedFile other{"--log", folder.Path() / "other"};
  const NamedFile none{"--record", ""};
  const NamedFile stream{"--replay", "-"};
  EXPECT_NO_THROW(CheckOutput(output, {other, stream, none}));
  EXPECT_NO_THROW(CheckOutput(none, {none, stream}));
  EXPECT_NO_THROW(CheckOutput(stream, {stream}));
  try {
    CheckOutput(output, {none, other, same});
    FAIL() << "it was taken";
  } catch (const ProgramError& error) {
    EXPECT_EQ(error.Status(), ExitStatus::kWrongArguments);
    EXPECT_THAT(error.what(), testing::MatchesRegex(".*one and --output .*one are one file: .*"));
  }
}

}  // namespace
