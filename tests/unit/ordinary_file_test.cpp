#include "platform/ordinary_file.h"

#include <gtest/gtest.h>

#include "host/hxacore/whole_file.h"
#include "tests/support/temporary_folder.h"

namespace {

TEST(OrdinaryFile, HasAtMostSoManyBytes) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("file", std::string(10, 'x'));
  EXPECT_TRUE(OpenOrdinaryFile(path, "rb", 10).stream);
  const OrdinaryFile large = OpenOrdinaryFile(path, "rb", 9);
  EXPECT_FALSE(large.stream);
  EXPECT_TRUE(large.isTooLarge);
  EXPECT_EQ(OpenOrdinaryFile(folder.Write("large", std::string((1U << 20U) + 1, 'x')), "rb", 1U << 20U).refusal,
            "it is larger than 1 MiB");
}

TEST(OrdinaryFile, IsNeitherAFolderNorAMissingFile) {
  const TemporaryFolder folder;
  const OrdinaryFile opened = OpenOrdinaryFile(folder.Path(), "rb", kLargestInput);
  EXPECT_FALSE(opened.stream);
  EXPECT_FALSE(opened.isMissing);
  EXPECT_NE(opened.refusal, "");
  const OrdinaryFile missing = OpenOrdinaryFile(folder.Path() / "none", "rb", kLargestInput);
  EXPECT_TRUE(missing.isMissing);
  EXPECT_NE(missing.refusal, "");
}

TEST(OrdinaryFile, IsReadWholeUpToTheLimit) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.Write("file", std::string(200000, 'x'));
  EXPECT_EQ(NKVRHXA20::ReadWholeFile(path).bytes, std::string(200000, 'x'));
  EXPECT_TRUE(NKVRHXA20::ReadWholeFile(path, 199999).isTooLarge);
}

}  // namespace
