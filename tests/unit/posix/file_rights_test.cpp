#include "host/hxahost/system/file_rights.h"

#include <gtest/gtest.h>

#include "host/hxahost/system/posix/file_mode.h"
#include "tests/support/temporary_folder.h"

namespace {

namespace fs = std::filesystem;
using hxahost::LetsOthersExchange;
using hxahost::LetsOthersWrite;
using hxahost::OthersMayWrite;

constexpr uid_t kUser = 1000;
constexpr gid_t kGroup = 1000;

struct Case {
  const char* name;
  mode_t mode;
  uid_t owner;
  gid_t group;
  bool isWritable;
};

constexpr Case kCases[] = {
    {"root's, for all to read",          0755,  0,     0,      false},
    {"root's, for its group to write",   0775,  0,     0,      false},
    {"the user's own",                   0700,  kUser, kGroup, false},
    {"the user's own group's",           0775,  kUser, kGroup, false},
    {"another group's, to read",         0750,  kUser, 50,     false},
    {"another group's, to write",        0770,  kUser, 50,     true },
    {"root's, another group's to write", 0775,  0,     50,     true },
    {"for all to write",                 0777,  kUser, kGroup, true },
    {"root's, for all to write",         0757,  0,     0,      true },
    {"for all to add to, as /tmp",       01777, 0,     0,      true },
    {"another user's",                   0755,  1001,  kGroup, true },
    {"another user's, not even his",     0555,  1001,  0,      true },
};

TEST(FileRights, FollowFromModeOwnerAndGroup) {
  for (const Case& each : kCases) {
    struct stat file {};
    file.st_mode = each.mode;
    file.st_uid = each.owner;
    file.st_gid = each.group;
    EXPECT_EQ(LetsOthersWrite(file, kUser, kGroup), each.isWritable) << each.name;
  }
}

struct EntryCase {
  const char* name;
  mode_t folderMode;
  uid_t folderOwner;
  uid_t entryOwner;
  bool isExchangeable;
};

constexpr EntryCase kEntryCases[] = {
    {"in a folder that nobody else may write",         0755,  0,     0,     false},
    {"another user's there",                           0755,  kUser, 1001,  false},
    {"in a folder for all to write",                   0777,  0,     0,     true },
    {"root's in one as /tmp",                          01777, 0,     0,     false},
    {"the user's own in one as /tmp",                  01777, 0,     kUser, false},
    {"another user's in one as /tmp",                  01777, 0,     1001,  true },
    {"in one as /tmp, but another user's",             01777, 1001,  kUser, true },
    {"in another user's folder, which he may open up", 0755,  1001,  0,     true },
};

TEST(FileRights, ToExchangeFollowFromTheFolderAndTheOwnersOfItsEntries) {
  for (const EntryCase& each : kEntryCases) {
    struct stat folder {};
    folder.st_mode = each.folderMode;
    folder.st_uid = each.folderOwner;
    struct stat entry {};
    entry.st_mode = 0755;
    entry.st_uid = each.entryOwner;
    EXPECT_EQ(LetsOthersExchange(folder, entry, kUser, kGroup), each.isExchangeable) << each.name;
  }
}

TEST(FileRights, AreReadFromTheFileAndFromTheTargetOfALink) {
  const TemporaryFolder folder;
  const fs::path file = folder.Write("tool", "");
  fs::create_symlink(file, folder.Path() / "link");
  fs::permissions(file, fs::perms::owner_all);
  EXPECT_FALSE(OthersMayWrite(file));
  EXPECT_FALSE(OthersMayWrite(folder.Path() / "link")) << "the mode of a link says nothing";
  fs::permissions(file, fs::perms::others_write, fs::perm_options::add);
  EXPECT_TRUE(OthersMayWrite(file));
  EXPECT_TRUE(OthersMayWrite(folder.Path() / "link"));
}

TEST(FileRights, OfAMissingFileAreNone) { EXPECT_FALSE(OthersMayWrite("/nothing/there")); }

}  // namespace
