#include "host/hxahost/collection/collection_lock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include "tests/support/temporary_folder.h"

namespace {

using hxahost::CollectionLock;

void ExpectNoWait() { ADD_FAILURE() << "waited"; }

TEST(CollectionLock, MakesTheSecondWaitForTheFirstAndSaySoOnce) {
  const TemporaryFolder folder;
  auto first = std::make_unique<CollectionLock>(folder.Path(), ExpectNoWait);
  std::atomic<int> waits = 0;
  std::atomic<bool> hasSecond = false;
  std::thread other([&] {
    const CollectionLock second(folder.Path(), [&] { ++waits; });
    hasSecond = true;
  });
  for (int attempt = 0; waits == 0 && attempt < 1000; ++attempt) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_FALSE(hasSecond);
  first.reset();
  other.join();
  EXPECT_TRUE(hasSecond);
  EXPECT_EQ(waits, 1);
}

TEST(CollectionLock, IsFreeAgainAfterItsEndAndLeavesNothingBehind) {
  const TemporaryFolder folder;
  { const CollectionLock lock(folder.Path(), ExpectNoWait); }
  { const CollectionLock lock(folder.Path(), ExpectNoWait); }
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

TEST(CollectionLock, IsOneForEachFolder) {
  const TemporaryFolder one;
  const TemporaryFolder two;
  const CollectionLock first(one.Path(), ExpectNoWait);
  const CollectionLock second(two.Path(), ExpectNoWait);
}

TEST(CollectionLock, IsDoneWithoutWhereTheFolderIsMissing) {
  const TemporaryFolder folder;
  const CollectionLock first(folder.Path() / "zenx", ExpectNoWait);
  const CollectionLock second(folder.Path() / "zenx", ExpectNoWait);
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "zenx"));
}

}  // namespace
