#include "host/hxahost/system/file_place.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;

TEST(FilePlaceWindows, IsTheSameInUpperAndLowerCase) {
  const TemporaryFolder folder;
  folder.Write("there", "text");
  EXPECT_TRUE(LeadToOneFile(folder.Path() / "there", folder.Path() / "THERE"));
  EXPECT_TRUE(LeadToOneFile(folder.Path() / L"\u00e4.json", folder.Path() / L"\u00c4.JSON"));
  EXPECT_FALSE(LeadToOneFile(folder.Path() / "a.json", folder.Path() / "b.json"));
}

}  // namespace
