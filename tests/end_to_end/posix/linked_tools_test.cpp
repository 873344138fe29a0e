#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

// A folder "zenx" in "machine" with a link to a folder or file elsewhere.
class LinkedTools : public testing::Test {
 protected:
  LinkedTools() { folder_.Write("machine/zenx/qcmdrun.exe", ""); }

  fs::path In(const fs::path& relative) const { return folder_.Path() / relative; }
  fs::path Zenx() const { return In("machine/zenx"); }
  void Write(const fs::path& relative) const { folder_.Write(relative, ""); }
  void Link(const fs::path& target) const { fs::create_symlink(target, Zenx() / "arcconf.exe"); }

  std::string Warnings() const {
    return RunHxahost({"query", "--directory", In("machine").string(), "--format", "json"}).err;
  }
  void ExpectNoWarning() const { EXPECT_THAT(Warnings(), Not(HasSubstr("others may write"))); }
  void ExpectWarningOf(const fs::path& path) const {
    EXPECT_THAT(Warnings(), HasSubstr("others may write to " + path.string() + ", and"));
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(LinkedTools, AreSafeIfOthersCannotReplaceThem) {
  Write("elsewhere/tools/arcconf");
  Link(In("elsewhere/tools/arcconf"));
  ExpectNoWarning();
}

TEST_F(LinkedTools, ThatOthersMayWriteAreNamed) {
  Write("elsewhere/tools/arcconf");
  Link(In("elsewhere/tools/arcconf"));
  LetOthersWrite(In("elsewhere/tools/arcconf"));
  ExpectWarningOf(Zenx() / "arcconf.exe");
}

TEST_F(LinkedTools, InAFolderThatOthersMayWriteAreNamed) {
  Write("elsewhere/tools/arcconf");
  Link("../../elsewhere/tools/arcconf");
  LetOthersWrite(In("elsewhere"));
  ExpectWarningOf(In("elsewhere"));
}

TEST_F(LinkedTools, IncludeEachLinkOnTheWay) {
  Write("elsewhere/tools/arcconf");
  fs::create_directories(In("between"));
  fs::create_directory_symlink(In("elsewhere"), In("between/link"));
  Link(In("between/link/tools/arcconf"));
  ExpectNoWarning();
  LetOthersWrite(In("between"));
  ExpectWarningOf(In("between"));
}

TEST_F(LinkedTools, ThatDoNotExistYetMayBeCreatedByOthers) {
  fs::create_directories(In("elsewhere"));
  Link(In("elsewhere/arcconf"));
  ExpectNoWarning();
  LetOthersWrite(In("elsewhere"));
  ExpectWarningOf(In("elsewhere"));
}

// In such a folder, like /tmp, nobody can replace the entries of others.
TEST_F(LinkedTools, BelowAStickyFolderAreSafe) {
  Write("elsewhere/tools/arcconf");
  Link(In("elsewhere/tools/arcconf"));
  fs::permissions(In("elsewhere"), fs::perms::all | fs::perms::sticky_bit);
  ExpectNoWarning();
  fs::remove_all(In("elsewhere/tools"));
  ExpectWarningOf(In("elsewhere"));
}

TEST_F(LinkedTools, BesideWhichOthersMayPutLibrariesAreNamed) {
  Write("elsewhere/arcconf");
  Link(In("elsewhere/arcconf"));
  fs::permissions(In("elsewhere"), fs::perms::all | fs::perms::sticky_bit);
  ExpectWarningOf(In("elsewhere"));
}

TEST_F(LinkedTools, IncludeTheContentsOfALinkedFolder) {
  Write("elsewhere/lib/storelib.so");
  fs::create_directory_symlink(In("elsewhere/lib"), Zenx() / "lib");
  ExpectNoWarning();
  LetOthersWrite(In("elsewhere/lib/storelib.so"));
  ExpectWarningOf(Zenx() / "lib/storelib.so");
}

TEST_F(LinkedTools, IncludeTheLinkThatTheirFolderIs) {
  fs::rename(Zenx(), In("elsewhere"));
  fs::create_directories(In("between"));
  fs::create_directory_symlink(In("elsewhere"), In("between/link"));
  fs::create_directory_symlink(In("between/link"), Zenx());
  ExpectNoWarning();
  LetOthersWrite(In("between"));
  ExpectWarningOf(In("between"));
}

TEST_F(LinkedTools, MayLeadInCircles) {
  fs::create_directory_symlink(Zenx(), Zenx() / "loop");
  fs::create_symlink("itself", Zenx() / "itself");
  ExpectNoWarning();
}

TEST_F(LinkedTools, TooManyToCheckAreReported) {
  fs::create_directory_symlink("/", Zenx() / "everything");
  EXPECT_THAT(Warnings(), HasSubstr("more than 10000 files"));
}

}  // namespace
