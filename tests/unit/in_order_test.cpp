#include "host/hxahost/fleet/in_order.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

// 0, 1, ..., count - 1.
auto Numbers(int count) {
  return [count, next = 0]() mutable { return next < count ? std::optional<int>(next++) : std::nullopt; };
}

TEST(InOrder, PassesResultsInTheOrderOfTheItemsWhicheverEndsFirst) {
  std::vector<int> taken;
  const auto work = [](int number) {
    if (number % 3 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return number * number;
  };
  hxahost::InOrder(3, Numbers(10), work, [&](int result) { taken.push_back(result); });
  EXPECT_THAT(taken, testing::ElementsAre(0, 1, 4, 9, 16, 25, 36, 49, 64, 81));
}

TEST(InOrder, HoldsNoMoreResultsThanItWorksOnAtATime) {
  std::atomic<int> held = 0;
  std::atomic<int> most = 0;
  const auto work = [&](int number) {
    const int now = ++held;
    int known = most;
    while (now > known && !most.compare_exchange_weak(known, now)) {
    }
    return number;
  };
  hxahost::InOrder(4, Numbers(200), work, [&](int) { --held; });
  EXPECT_GE(most, 1);
  EXPECT_LE(most, 4);
}

TEST(InOrder, PassesOnExceptions) {
  const auto work = [](int number) { return number == 2 ? throw std::runtime_error("two") : number; };
  EXPECT_THROW(hxahost::InOrder(2, Numbers(5), work, [](int) {}), std::runtime_error);
}

TEST(InOrder, DoesNothingWithoutItems) {
  hxahost::InOrder(
      2, Numbers(0), [](int number) { return number; }, [](int) { FAIL(); });
}

}  // namespace
