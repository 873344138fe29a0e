#include "host/hxahost/bundle/bundle_mask.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "host/hxahost/bundle/write_bundle.h"
#include "tests/support/sample_bundle.h"

namespace {

using namespace hxahost;
using testing::HasSubstr;
using testing::Not;

RandomSource Seeded() {
  return [engine = std::mt19937(5)]() mutable { return static_cast<std::uint32_t>(engine()); };
}

Bundle Secretive() {
  Bundle bundle = SampleBundle();
  bundle.runs[0].result.output =
      "   Logical drive name : Size\n   Size : 5 MB\n   Serial number : AB12CD34\n   State : Online\n";
  bundle.runs[1].result.output =
      "<x serialNumber=\"AB12CD34\" text=\"Size of dbserver, Sizes\" />\nSize, and AB12CD34X in a line\n";
  bundle.runs[2].failure->message = "C:\\tools is not there, says DBSERVER";
  bundle.raidLog->bytes = "June 1\tINF\tDBSERVER\tAB12CD34 lost: Size\r\n";
  return bundle;
}

TEST(BundleMask, HidesSecretsEverywhereAndKeepsEveryLength) {
  const Bundle original = Secretive();
  const Bundle masked = MaskBundle(original, Seeded());
  const std::string text = WriteBundle(masked);
  for (const char* const secret : {"AB12CD34", "DBSERVER", "dbserver", "tools", "ZXM"}) {
    EXPECT_THAT(text, Not(HasSubstr(secret)));
  }
  EXPECT_TRUE(masked.isMasked);
  for (std::size_t run = 0; run < 2; ++run) {
    EXPECT_EQ(masked.runs[run].result.output.size(), original.runs[run].result.output.size());
  }
  EXPECT_EQ(masked.raidLog->bytes.size(), original.raidLog->bytes.size());
}

TEST(BundleMask, LeavesTheWordsThatTheTextsAreReadBy) {
  const Bundle masked = MaskBundle(Secretive(), Seeded());
  EXPECT_THAT(masked.runs[0].result.output, HasSubstr("   Size : 5 MB\n"));
  EXPECT_THAT(masked.runs[0].result.output, HasSubstr("   State : Online\n"));
  EXPECT_THAT(masked.runs[0].result.output, Not(HasSubstr("name : Size")));
  // Where it is no longer a name it is a word, and a part of one is none.
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr(", Sizes\" />\nSize, and "));
  EXPECT_THAT(masked.raidLog->bytes, testing::StartsWith("June 1\tINF\t"));
}

TEST(BundleMask, GivesTheSameTextTheSameMaskInAllPlaces) {
  const Bundle masked = MaskBundle(Secretive(), Seeded());
  const std::string& first = masked.runs[0].result.output;
  const std::string serial = first.substr(first.find("Serial number : ") + 16, 8);
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr("serialNumber=\"" + serial + "\""));
  EXPECT_THAT(masked.runs[1].result.output, HasSubstr("and " + serial + "X in"));
  EXPECT_THAT(masked.raidLog->bytes, HasSubstr("\t" + masked.machine + "\t" + serial + " lost: "));
  EXPECT_EQ(masked.raidLog->path, *masked.raidLogDir + "RaidEvtA.log");
  EXPECT_THAT(masked.runs[2].failure->message, HasSubstr(masked.directory + " is not there, says " + masked.machine));
}

TEST(BundleMask, MasksTheFolderOfALogWhoseSlashesAreThoseOfAnotherSystem) {
  Bundle bundle = SampleBundle();
  bundle.raidLogDir = "raid\\log\\";
  bundle.raidLog->path = "raid/log/RaidEvtA.log";
  const Bundle masked = MaskBundle(bundle, Seeded());
  EXPECT_THAT(masked.raidLog->path, testing::EndsWith("/RaidEvtA.log"));
  EXPECT_EQ(masked.raidLog->path.substr(0, 4), masked.raidLogDir->substr(0, 4));
  EXPECT_EQ(masked.raidLog->path[4], '/');
}

TEST(BundleMask, LeavesABundleWithNothingInItAsItIs) {
  Bundle empty;
  Bundle masked = MaskBundle(empty, Seeded());
  masked.isMasked = false;
  EXPECT_EQ(WriteBundle(masked), WriteBundle(empty));
}

}  // namespace
