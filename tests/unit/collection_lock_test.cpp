#include "host/hxahost/collection/collection_lock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <sstream>
#include <thread>

#include "tests/support/temporary_folder.h"

namespace {

using hxahost::CollectionLock;

void TakeWithoutWait(const std::filesystem::path& folder) {
  std::ostringstream said;
  const CollectionLock lock(folder, said);
  EXPECT_EQ(said.str(), "");
}

TEST(CollectionLock, MakesTheSecondWaitForTheFirstAndSaySoOnce) {
  const TemporaryFolder folder;
  std::ostringstream said;
  auto first = std::make_unique<CollectionLock>(folder.Path(), said);
  std::atomic<bool> hasSecond = false;
  std::thread other([&] {
    const CollectionLock second(folder.Path(), said);
    hasSecond = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(500));
  EXPECT_FALSE(hasSecond);
  first.reset();
  other.join();
  EXPECT_TRUE(hasSecond);
  EXPECT_EQ(said.str(), "hxahost: another program collects from this folder zenx: waiting until it is done.\n");
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
  const CollectionLock first(one.Path(), said);
  TakeWithoutWait(two.Path());
}

TEST(CollectionLock, IsNotNeededForAMissingFolder) {
  const TemporaryFolder folder;
  std::ostringstream said;
  const CollectionLock first(folder.Path() / "zenx", said);
  TakeWithoutWait(folder.Path() / "zenx");
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "zenx"));
}

}  // namespace
