#include "host/hxahost/system/file_place.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

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

// The standard library knows no server and no share.
TEST(FilePlaceWindows, OfAShareIsOnTheShare) {
  for (const wchar_t* const path : {LR"(\\srv\share\new.txt)", LR"(//srv/share/old/../new.txt)",
                                    LR"(\\?\UNC\srv\share\new.txt)", LR"(\\?\unc\srv\share\new.txt)"}) {
    EXPECT_EQ(AbsolutePath(path), LR"(\\srv\share\new.txt)");
    EXPECT_EQ(PlaceOf(path), LR"(\\srv\share\new.txt)");
  }
}

TEST(FilePlaceWindows, HasAPrefixOnlyIfItMeansSomethingElseWithout) {
  const std::wstring longPath = LR"(\\?\C:\)" + std::wstring(200, L'd') + L"\\" + std::wstring(100, L'f');
  EXPECT_EQ(AbsolutePath(LR"(\\?\C:\folder\new.txt)"), LR"(C:\folder\new.txt)");
  EXPECT_EQ(AbsolutePath(longPath), longPath);
  for (const wchar_t* const path : {LR"(\\?\C:\folder\NUL)", LR"(\\?\Volume{0}\new.txt)", LR"(\\?\C:)"}) {
    EXPECT_EQ(AbsolutePath(path), path);
  }
}

TEST(FilePlaceWindows, OfADeviceIsTheDevice) {
  for (const wchar_t* const path : {L"NUL", L"nul", L"NUL.", L"COM1", L"AUX", LR"(\\.\NUL)"}) {
    EXPECT_TRUE(IsDevice(path)) << std::filesystem::path(path);
  }
  EXPECT_EQ(PlaceOf(L"NUL"), LR"(\\.\NUL)");
  EXPECT_FALSE(IsDevice(L"new.txt"));
  const NamedFile output{"--output", "nul"};
  EXPECT_NO_THROW(CheckOutput({"--record", "NUL"}, {output}));
}

TEST(FilePlaceWindows, OfABlankIsNone) { EXPECT_EQ(AbsolutePath(L" "), L" "); }

}  // namespace
