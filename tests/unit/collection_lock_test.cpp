#include "host/hxahost/collection/collection_lock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <ctime>
#include <memory>
#include <sstream>
#include <thread>

#include "host/hxahost/system/exit_status.h"
#include "host/hxahost/system/folder_lock.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/test_system.h"

namespace {

using hxahost::CollectionLock;
using testing::AllOf;
using testing::EndsWith;
using testing::StartsWith;

constexpr std::chrono::seconds kGenerous{60};

void TakeWithoutWait(const std::filesystem::path& folder) {
  std::ostringstream said;
  const CollectionLock lock(folder, kGenerous, said);
  EXPECT_EQ(said.str(), "");
}

// Returns the error of a second program that waits this long while the first one collects. It writes to said.
std::string Refusal(const std::filesystem::path& folder, std::chrono::seconds longestWait, std::ostream& said) {
  try {
    const CollectionLock second(folder, longestWait, said);
  } catch (const hxahost::ProgramError& error) {
    EXPECT_EQ(error.Status(), hxahost::ExitStatus::kBusy);
    return error.what();
  }
  return "";
}

TEST(CollectionLock, MakesTheSecondWaitForTheFirstAndSaySoOnce) {
  const TemporaryFolder folder;
  std::ostringstream said;
  auto first = std::make_unique<CollectionLock>(folder.Path(), kGenerous, said);
  std::atomic<bool> hasSecond = false;
  std::thread other([&] {
    const CollectionLock second(folder.Path(), kGenerous, said);
    hasSecond = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_FALSE(hasSecond);
  first.reset();
  other.join();
  EXPECT_TRUE(hasSecond);
  EXPECT_THAT(said.str(), StartsWith("hxahost: another program collects from this folder zenx ("));
  EXPECT_THAT(said.str(), EndsWith("): waiting at most 60 s.\n"));
  EXPECT_EQ(std::ranges::count(said.str(), '\n'), 1);
}

TEST(CollectionLock, GivesUpAtTheEndOfTheWait) {
  const TemporaryFolder folder;
  std::ostringstream said;
  const CollectionLock first(folder.Path(), kGenerous, said);
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_THAT(Refusal(folder.Path(), std::chrono::seconds(1), said),
              AllOf(StartsWith("Nothing was collected: another program collects from this folder zenx ("),
                    EndsWith("). Try again later, or wait longer with --wait SECONDS.")));
  EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
  EXPECT_THAT(said.str(), EndsWith("waiting at most 1 s.\n"));
}

TEST(CollectionLock, GivesUpAtOnceWithoutAWait) {
  const TemporaryFolder folder;
  std::ostringstream said;
  const CollectionLock first(folder.Path(), kGenerous, said);
  EXPECT_THAT(Refusal(folder.Path(), std::chrono::seconds(0), said), StartsWith("Nothing was collected: "));
  EXPECT_EQ(said.str(), "");
}

TEST(CollectionLock, NamesTheProcessThatHasIt) {
  const TemporaryFolder folder;
  const std::time_t begin = std::time(nullptr);
  hxahost::FolderLock first(folder.Path());
  hxahost::FolderLock second(folder.Path());
  ASSERT_TRUE(first.Take());
  ASSERT_FALSE(second.Take());
  const auto holder = second.Holder();
  ASSERT_TRUE(holder.has_value());
  EXPECT_TRUE(IsRunning(holder->process));
  EXPECT_THAT(holder->program, StartsWith("unit_tests"));
  EXPECT_GE(holder->since, begin - 86400);  // this program's start
  EXPECT_LE(holder->since, std::time(nullptr) + 1);
}

TEST(CollectionLock, IsFreeAgainAfterItsEndAndLeavesNoFile) {
  const TemporaryFolder folder;
  TakeWithoutWait(folder.Path());
  TakeWithoutWait(folder.Path());
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(CollectionLock, IsOneForEachFolder) {
  const TemporaryFolder one;
  const TemporaryFolder two;
  std::ostringstream said;
  const CollectionLock first(one.Path(), kGenerous, said);
  TakeWithoutWait(two.Path());
}

TEST(CollectionLock, IsNotNeededForAMissingFolder) {
  const TemporaryFolder folder;
  std::ostringstream said;
  const CollectionLock first(folder.Path() / "zenx", kGenerous, said);
  TakeWithoutWait(folder.Path() / "zenx");
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "zenx"));
}

}  // namespace
