// Libraries planted in the folder of the tools, the working directory, where anybody may have written files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "host/hxahost/text/utf8.h"
#include "tests/support/hxahost_run.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

namespace fs = std::filesystem;
using hxahost::Utf8FromPath;

// Every library that the program and the plug-in are linked with, on either system.
constexpr const char* kNames[] = {
    "zenx.pi",        "plugin.nsp",         "hxacore.dll",         "libhxacore.so", "setupapi.dll",
    "cfgmgr32.dll",   "advapi32.dll",       "version.dll",         "shell32.dll",   "libstdc++-6.dll",
    "libstdc++.so.6", "libgcc_s_seh-1.dll", "libwinpthread-1.dll", "libgcc_s.so.1", "libc.so.6",
};

class PlantedLibrary : public testing::Test {
 protected:
  PlantedLibrary() {
    for (const char* const name : kNames) fs::copy(ProgramFolder() / "planted.library", folder_.Path() / name);
    SetVariable("ZENX_TEST_TRACE", Utf8FromPath(Trace()));
    fs::current_path(folder_.Path());
  }
  ~PlantedLibrary() override { fs::current_path(before_); }
  PlantedLibrary(const PlantedLibrary&) = delete;
  PlantedLibrary& operator=(const PlantedLibrary&) = delete;

  fs::path Trace() const { return folder_.Path() / "trace"; }

 private:
  TemporaryFolder folder_;
  fs::path before_ = fs::current_path();
};

TEST_F(PlantedLibrary, IsNeverLoadedFromTheWorkingDirectory) {
  const std::vector<std::string> cases[] = {
      {"query"                                   },
      { "query", "--directory", "."},
      {                                       "query", "--plugin", Utf8FromPath(ProgramFolder() / "zenx.pi")}
  };
  for (const std::vector<std::string>& arguments : cases) {
    const ProgramResult result = RunHxahost(arguments);
    EXPECT_EQ(result.exitStatus, 4) << arguments.back() << ": " << result.err;
    EXPECT_FALSE(fs::exists(Trace())) << arguments.back();
  }
}

TEST_F(PlantedLibrary, WouldLeaveItsTrace) {
  const ProgramResult result = RunHxahost({"query", "--plugin", "zenx.pi"});
  EXPECT_EQ(result.exitStatus, 3) << result.err;
  EXPECT_TRUE(fs::exists(Trace())) << "named by the user, it is loaded";
}

}  // namespace
