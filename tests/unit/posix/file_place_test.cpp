#include "host/hxahost/system/file_place.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace {

using namespace hxahost;
namespace fs = std::filesystem;

TEST(FilePlacePosix, IsWhereLinksLead) {
  const TemporaryFolder folder;
  const fs::path there = folder.Write("there", "text");
  fs::create_hard_link(there, folder.Path() / "hard");
  fs::create_directory_symlink(".", folder.Path() / "folder");
  fs::create_symlink("there", folder.Path() / "link");
  fs::create_symlink("not there", folder.Path() / "early");
  fs::create_symlink("folder/early", folder.Path() / "earlier");
  EXPECT_TRUE(LeadToOneFile(there, folder.Path() / "hard"));
  EXPECT_TRUE(LeadToOneFile(there, folder.Path() / "link"));
  EXPECT_TRUE(LeadToOneFile(folder.Path() / "earlier", folder.Path() / "folder" / "not there"));
  EXPECT_FALSE(LeadToOneFile(folder.Path() / "earlier", folder.Path() / "not There"));
  EXPECT_EQ(PlaceOf(folder.Path() / "earlier"), fs::canonical(folder.Path()) / "not there");
}

TEST(FilePlacePosix, OfACircleOfLinksIsTheLinkItself) {
  const TemporaryFolder folder;
  fs::create_symlink("circle", folder.Path() / "circle");
  EXPECT_EQ(PlaceOf(folder.Path() / "circle"), folder.Path() / "circle");
}

TEST(FilePlacePosix, OfADeviceMayBeNamedTwice) {
  EXPECT_TRUE(IsDevice("/dev/null"));
  const NamedFile output{"--output", "/dev/null"};
  EXPECT_NO_THROW(CheckOutput({"--record", "/dev/null"}, {output}));
}

}  // namespace
